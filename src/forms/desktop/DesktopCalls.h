#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/Copies.h"
#include "forms/desktop/HandOver.h"

#include <QStringList>
#include <functional>

namespace vypx {

/// What the desktop asks of the program as a whole, whichever copy hears it.
class DesktopCalls {
public:
    /// Empty: all was done. Else what is answered.
    using Answer = std::function<void(const QString& error)>;

    /// More files than this in one call are refused: each may take a window of its own.
    static constexpr qsizetype MostFiles = 100;

    /// `startedByDesktop`: the call for which this copy was started has yet to come.
    DesktopCalls(FileTaker& own, HandOver& handOver, Copies& copies, bool startedByDesktop);

    /// A further copy, or this one where it was started for that.
    void Activate(const Activation& activation, const Answer& answer);
    /// Each file goes to a copy of its own; what is no URI of a file is told in a box. An empty
    /// list is Activate.
    void Open(const QStringList& uris, const Activation& activation, const Answer& answer);
    /// Each file goes to a copy of its own; of an ending that is none of ours, that is told.
    void OpenPaths(const QStringList& paths, const Activation& activation, const Answer& answer);
    /// That call went to another copy.
    void ForgetStart() { m_startedByDesktop = false; }

private:
    FileTaker& m_own;
    HandOver& m_handOver;
    Copies& m_copies;
    bool m_startedByDesktop;
};

} // namespace vypx
