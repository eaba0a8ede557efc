#include "forms/desktop/BusStart.h"

#include <QCoreApplication>
#include <QProcess>
#include <cerrno>
#include <csignal>

namespace vypx {

namespace {

/// D-Bus puts these into the environment of what it starts.
constexpr const char* StarterType = "DBUS_STARTER_BUS_TYPE";
constexpr const char* StarterAddress = "DBUS_STARTER_ADDRESS";

} // namespace

bool TakeStartByBus()
{
    const bool started = qEnvironmentVariableIsSet(StarterType);
    qunsetenv(StarterType);
    qunsetenv(StarterAddress);
    return started;
}

qint64 StartProgram(const Activation& activation)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const auto set = [&](const char* name, const QString& value) {
        environment.remove(name); // that of this copy's own start
        if (!value.isEmpty())
            environment.insert(name, value);
    };
    set("XDG_ACTIVATION_TOKEN", activation.token);
    set("DESKTOP_STARTUP_ID", activation.startupId);
    QProcess program;
    program.setProgram(QCoreApplication::applicationFilePath());
    program.setProcessEnvironment(environment);
    qint64 process = 0;
    return program.startDetached(&process) ? process : 0;
}

bool IsAlive(qint64 process)
{
    return ::kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

} // namespace vypx
