#pragma once

#include "PicturesFixture.h"

#include <QDialog>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

namespace vypx::test {

/// Icons, and files that are dropped on the window's parts.
class DropsFixture : public PicturesFixture {
protected:
    QWidget& Target(const QString& name)
    {
        return name == "MDIForm1" ? *frame : Find<QWidget>(name);
    }

    static std::unique_ptr<QMimeData> Files(const QStringList& paths)
    {
        auto data = std::make_unique<QMimeData>();
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << (path.contains("://") ? QUrl(path) : QUrl::fromLocalFile(path));
        data->setUrls(urls);
        return data;
    }

    /// Whether the data may be dropped there.
    bool Drag(const QString& target, const QMimeData& data)
    {
        QDragEnterEvent enter(
            { 0, 0 }, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&Target(target), &enter);
        return enter.isAccepted();
    }
    bool Drag(const QString& target) { return Drag(target, *Files({ "/tmp/a.prc" })); }

    /// The button is released; nothing but the answer to the other program has happened yet.
    Qt::DropAction Release(const QString& target, const QMimeData& data)
    {
        if (!Drag(target, data))
            return Qt::IgnoreAction;
        QDropEvent drop(
            { 0, 0 }, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(Qt::MoveAction); // as some file managers propose
        drop.ignore();
        QCoreApplication::sendEvent(&Target(target), &drop);
        return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
    }

    bool Drop(const QString& target, const QMimeData& data)
    {
        const bool isTaken = Release(target, data) != Qt::IgnoreAction;
        QCoreApplication::processEvents();
        return isTaken;
    }
    bool Drop(const QString& target, const QStringList& paths)
    {
        return Drop(target, *Files(paths));
    }

    /// frmDropIconTarget, if it stands.
    QDialog* Window()
    {
        auto* const window = frame->findChild<QDialog*>("frmDropIconTarget");
        return window && window->isVisible() ? window : nullptr;
    }
    void PressInWindow(const QString& name)
    {
        QTest::mouseClick(Window()->findChild<QPushButton*>(name), Qt::LeftButton);
    }

    void MakeNew()
    {
        Entry("mnuNew").trigger();
        Find<QLineEdit>("txtNewIconsetDBName").setText("New");
        Find<QPushButton>("cmdDoneName").click();
    }
    QString AnotherIconset(const std::string& name = "other.prc")
    {
        return Written(Iconset{ .name = "Other", .resources = { Picture(3600) } }.File(), name);
    }
    QString RootText() { return Nodes().Root()->text(0); }
};

} // namespace vypx::test
