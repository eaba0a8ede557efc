#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace vypx::test {

/// Runs one disabled test of this program in a process of its own, with the fault library before it
/// and these variables of the environment (tests/faults tells those of the library). Its exit code;
/// -1 when it was killed.
inline int RunWithFaults(const QString& test, const std::map<std::string, std::string>& environment)
{
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    all.insert("LD_PRELOAD", VYPX_FAULTS);
    for (const auto& [name, value] : environment)
        all.insert(QString::fromStdString(name), QString::fromStdString(value));
    QProcess child;
    child.setProcessEnvironment(all);
    child.setStandardOutputFile(QProcess::nullDevice());
    child.setStandardErrorFile(QProcess::nullDevice());
    child.start(QCoreApplication::applicationFilePath(),
        { "--gtest_also_run_disabled_tests", "--gtest_filter=" + test });
    EXPECT_TRUE(child.waitForFinished());
    return child.exitStatus() == QProcess::NormalExit ? child.exitCode() : -1;
}

} // namespace vypx::test
