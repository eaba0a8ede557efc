#pragma once

#include "forms/common/FileTaker.h"

#include <QStringList>
#include <functional>

namespace vypx {

/// The other running copies of the program and the way to start more of them. Nothing here waits:
/// every call ends with one of `done`, at once or later. There is a time limit but where a copy was
/// sent a file: from then on it is the copy's, until that refuses it or dies.
class Copies {
public:
    /// What came of a copy that was started for a file.
    enum class Started {
        Took,    ///< it has the file
        Refused, ///< it runs and has another file by now
        Failed,  ///< there is no such copy
    };

    virtual ~Copies() = default;

    /// What names the other copies, in the order in which they are to be asked.
    virtual void List(std::function<void(QStringList)> done) = 0;
    /// Whether that copy answers and would take a file.
    virtual void Ask(const QString& copy, std::function<void(bool)> done) = 0;
    /// Sends a copy that has just answered the file. True: it has taken it.
    virtual void Give(
        const QString& copy, const OutsideFile& file, std::function<void(bool)> done) = 0;
    /// Starts a copy and sends it the file; `sent` (once, or never) is told just before.
    virtual void StartFor(
        const OutsideFile& file, std::function<void()> sent, std::function<void(Started)> done) = 0;
    /// Starts a copy without a file.
    virtual void Start(const Activation& activation, std::function<void(bool)> done) = 0;
};

} // namespace vypx
