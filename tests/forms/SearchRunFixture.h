#pragma once

#include "AppListFixture.h"

#include <QTimer>
#include <functional>

namespace vypx::test {

/// Searches that are met amid their run: what is done then is done by events of the search.
class SearchRunFixture : public AppListFixture {
protected:
    static constexpr int Many = 200;

    ~SearchRunFixture() override { EXPECT_FALSE(m_isWaiting) << "the search was never met"; }

    /// While a search runs that is begun afterwards.
    void Amid(std::function<void()> act)
    {
        m_isWaiting = true;
        QTimer::singleShot(0, frame.get(), [this, act = std::move(act)] { Meet(act); });
    }
    /// The same when the first file was found: the label shows it.
    void AmidTheWalk(const std::function<void()>& act)
    {
        Amid([this, act] {
            if (PathOnShow().isEmpty())
                AmidTheWalk(act);
            else
                act();
        });
    }
    bool IsSearching() { return StartupSearchRunning || !SearchFolder.empty(); }
    QString PathOnShow()
    {
        return Editor() ? Part<QLabel>("lblSearchingFolder").text()
                        : Find<QLabel>("lblSearchingApp").text();
    }
    void SearchInFolder()
    {
        ask.ChooseFolder(PalmFolder());
        Press("cmdAddPrcByFolder");
    }
    static int NewApplications()
    {
        return static_cast<int>(std::count_if(AppTable.begin(), AppTable.end(),
            [](const CatalogRow& row) { return row.name.starts_with("New "); }));
    }
    bool CanUsePart(const QString& name) { return Part(name).isEnabled(); }
    bool HasEnded() { return !frame->isVisible(); }

private:
    void Meet(const std::function<void()>& act)
    {
        if (!IsSearching()) {
            Amid(act);
            return;
        }
        m_isWaiting = false;
        act();
    }

    bool m_isWaiting = false;
};

} // namespace vypx::test
