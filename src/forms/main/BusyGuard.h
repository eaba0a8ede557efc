#pragma once

#include <QObject>
#include <functional>

namespace vypx {

/// Keeps the user's input out of the program while long work lets pending events run: keys, clicks
/// and drops go nowhere, but to a box that the work itself shows. Boxes take no drops.
class BusyGuard : public QObject {
    Q_OBJECT

public:
    bool IsBusy() const { return m_depth > 0; }

    /// Runs `work` with the guard up. What was put off meanwhile runs when it has ended, however.
    void Run(const std::function<void()>& work);

    /// Now, or as soon as the work has ended that is at hand.
    void WhenIdle(std::function<void()> act);

signals:
    /// The work is done, all that was nested in it too.
    void Ended();

private:
    void End();
    bool eventFilter(QObject* watched, QEvent* event) override;

    int m_depth = 0;
    std::function<void()> m_whenIdle;
};

} // namespace vypx
