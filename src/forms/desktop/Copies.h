#pragma once

#include "forms/common/FileTaker.h"

#include <QStringList>
#include <functional>

namespace vypx {

/// The other running copies of the program and the way to start more of them. Nothing here waits:
/// every call ends with one of `done`, at once or later, within a time limit unless it says
/// otherwise.
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
    /// Gives a copy that has just answered the file. True: it has taken it. No time limit: once it
    /// was sent the file is the copy's, until that refuses it or dies.
    virtual void Give(
        const QString& copy, const OutsideFile& file, std::function<void(bool)> done) = 0;
    /// Starts a copy and gives it the file.
    virtual void StartFor(const OutsideFile& file, std::function<void(Started)> done) = 0;
    /// Starts a copy without a file; `token` as in OutsideFile.
    virtual void Start(const QString& token, std::function<void(bool)> done) = 0;
};

} // namespace vypx
