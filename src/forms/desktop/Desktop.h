#pragma once

#include "forms/common/FileTaker.h"

#include <memory>

namespace vypx {

/// The road by which files come from the desktop: D-Bus, or where the system has none its events.
class Desktop {
public:
    /// From now on files may come; `own` keeps them until it can open them.
    explicit Desktop(FileTaker& own);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// The program has been left, the application's event loop too: hands over what is left.
    void Finish();

private:
    struct Road;
    std::unique_ptr<Road> m_road;
};

} // namespace vypx
