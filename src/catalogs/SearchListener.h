#pragma once

#include "catalogs/CatalogBox.h"

#include <chrono>
#include <functional>
#include <string_view>

namespace vypx {

/// Whoever watches a search for applications: a window, the command-line tool, a test. While a
/// search runs its listener must not start another.
class SearchListener {
public:
    virtual ~SearchListener() = default;

    virtual void Show(const CatalogBox& box) = 0;
    /// A file that matches (UTF-8). Comes for every one: cheap steps only.
    virtual void PathFound(std::string_view) { }
    /// The walk is done: no path is shown any more.
    virtual void WalkEnded() { }
    /// Time to let pending events run.
    virtual void RunEvents() { }
    /// Whether a stop was asked for since the last call; comes after each RunEvents. A stop ends
    /// the stage that runs: what the walk has found is still gone through, and what is new so far
    /// is still added.
    virtual bool TakeStop() { return false; }
};

/// Runs a listener's events in the steps of long work: at the first one, and then not before a
/// sixtieth of a second has gone by.
class SearchPace {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    explicit SearchPace(SearchListener& listener, Clock clock = &std::chrono::steady_clock::now)
        : m_listener(listener)
        , m_clock(std::move(clock))
    {
    }

    /// False: the search is to stop.
    bool Step()
    {
        const auto now = m_clock();
        if (m_isUnderWay && now - m_last < Pause)
            return true;
        m_isUnderWay = true;
        m_listener.RunEvents();
        m_last = m_clock(); // the pause begins when the events are done
        return !m_listener.TakeStop();
    }

private:
    static constexpr std::chrono::microseconds Pause{ 1'000'000 / 60 };

    SearchListener& m_listener;
    Clock m_clock;
    bool m_isUnderWay = false;
    std::chrono::steady_clock::time_point m_last;
};

} // namespace vypx
