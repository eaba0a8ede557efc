#pragma once

#include "WindowFixture.h"

#include "catalogs/PrcSearch.h"
#include "forms/common/UserStore.h"
#include "support/PrcFiles.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <functional>

namespace vypx::test {

/// Starts of the program with what greets its user: splash, search for applications, tip.
class GreetingFixture : public WindowFixture {
protected:
    GreetingFixture()
    {
        std::filesystem::create_directory(program.File("palm"));
        WriteBytes(program.File("palm/new.prc"), PrcFile("New one", "appl", "NEW1"));
        WriteTips("The only tip\n");
    }
    ~GreetingFixture() override { SaveShowTipsAtStartup(false); }

    void WriteTips(const std::string& text) { WriteText(program.File("TIPOFDAY.TXT"), text); }

    struct Greets {
        bool splash = false, search = false, tip = false;
    };
    void StartWith(const Greets& greets)
    {
        const auto word = [](bool on) { return std::string(on ? "True" : "False"); };
        WriteSettings("[Startup Search]\nSearch for apps at startup=" + word(greets.search)
            + "\n[Splash Screen]\nShow splash screen at startup=" + word(greets.splash)
            + "\n[Hotsync Info]\nPalm Desktop Folder=" + program.File("palm")
            + "\n[Main Window Size]\nWidth=14000\nHeight=9800\n");
        SaveShowTipsAtStartup(greets.tip);
        Start();
    }

    /// The window of that name that stands now; null: none does.
    QDialog* Window(const QString& name)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QDialog* window : frame->findChildren<QDialog*>(name))
            if (window->isVisible())
                return window;
        return nullptr;
    }
    QDialog* Splash() { return Window("frmSplash"); }
    QDialog* Tip() { return Window("frmTip"); }
    QDialog* About() { return Window("frmAbout"); }

    /// A press and a release of a key where the window has the focus.
    void Press(QDialog* window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        ASSERT_NE(window, nullptr);
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, key, modifiers);
    }
    /// The key is held down.
    void Repeat(QDialog* window, Qt::Key key)
    {
        ASSERT_NE(window, nullptr);
        QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(
            window->focusWidget() ? window->focusWidget() : window, &repeat);
    }
    void Click(QDialog* window, const QString& name)
    {
        QWidget& control = In(window, name);
        QTest::mouseClick(&control, Qt::LeftButton, {}, { 8, control.height() / 2 });
    }

    static bool HasSearched()
    {
        return std::any_of(AppTable.begin(), AppTable.end(),
            [](const CatalogRow& row) { return row.name == "New one"; });
    }
    /// Runs once, as soon as a search lets events run.
    void AmidTheSearch(std::function<void()> act)
    {
        QTimer::singleShot(0, &m_timers, [this, act = std::move(act)] {
            if (!StartupSearchRunning)
                AmidTheSearch(act);
            else
                act();
        });
    }
    bool CanUseMain() { return frame->isEnabled() && CanUse("TreeView1"); }

private:
    QObject m_timers;
};

} // namespace vypx::test
