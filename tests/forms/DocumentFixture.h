#pragma once

#include "WindowFixture.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>

namespace vypx::test {

/// The program running, with one iconset to open and the windows for new ones.
class Documents : public WindowFixture {
protected:
    Documents() { Start(); }

    void OpenAlpha(const std::string& file = "set.prc")
    {
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" } };
        Open(Written(Iconset{ .name = "Set",
                         .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 0) },
                             Picture(3500) } }
                         .File(),
            file));
    }
    bool HasWindow(const QString& name) { return frame->findChild<QDialog*>(name) != nullptr; }
    void Click(const QString& name)
    {
        Find<QAbstractButton>(name).click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void SelectAlpha() { Nodes().setCurrentItem(Nodes().NodeOf("Alpha (Large Icon)")); }
    bool HasPicture() { return !Find<QWidget>("picSM").size().isEmpty(); }
    void MakeNew(const QString& name)
    {
        Entry("mnuNew").trigger();
        Find<QLineEdit>("txtNewIconsetDBName").setText(name);
        Click("cmdDoneName");
    }
};

} // namespace vypx::test
