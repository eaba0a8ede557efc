#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/Copies.h"
#include "forms/desktop/DesktopCalls.h"
#include "forms/desktop/HandOver.h"

#include <QObject>

namespace vypx {

/// Copies of an application bundle of macOS: they do not know of each other, so that a file that
/// this one does not take always starts one.
class BundleCopies : public Copies {
public:
    void List(std::function<void(QStringList)> done) override { done({}); }
    void Ask(const QString&, std::function<void(bool)> done) override { done(false); }
    void Give(const QString&, const OutsideFile&, std::function<void(bool)> done) override
    {
        done(false);
    }
    void StartFor(const OutsideFile& file, std::function<void()> sent,
        std::function<void(Started)> done) override;
    void Start(const Activation& activation, std::function<void(bool)> done) override;
};

/// Takes the system's events that ask for a file (QFileOpenEvent), which come to the application.
class FileEvents : public QObject {
    Q_OBJECT

public:
    FileEvents(FileTaker& own, Copies& copies);

    /// The program has been left: runs events until all files have been handed over.
    void Finish() { m_handOver.Finish({}); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    HandOver m_handOver;
    DesktopCalls m_calls;
};

} // namespace vypx
