#pragma once

#include "PicturesFixture.h"

#include "document/Catalogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>

namespace vypx::test {

/// The window for new icons and new owners over the icons of IconsFixture: Alpha in both sizes,
/// Beta in the large one, an orphan. The launcher's icons bear the IDs of the shipped file.
class AddIconFixture : public PicturesFixture {
protected:
    static constexpr const char* Orphan = "tAIB3503 (Orphan) ";

    AddIconFixture()
    {
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "BETA", "" },
            { "Gamma", "appl", "GAMM", "" }, { "Delta", "appl", "DELT", "" } };
        PalmTable = { {}, { "Palm Clock", "appl", "clck", "" },
            { "Palm Mail", "appl", "mail", "" } };
        VYTable = { {}, { "Beam (Large Icon)", "2002", "" }, { "Beam (Small Icon)", "2003", "" },
            { "Copy (Large Icon)", "2004", "" } };
    }

    void OpenAdd() { Press("cmdAddIcon"); }
    void OpenAssign(const QString& icon)
    {
        Click(icon);
        Press("cmdAssignApp");
    }

    /// Null: it has gone.
    QDialog* Window()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return frame->findChild<QDialog*>("frmAddIcon");
    }
    bool IsOpen() { return Window() && Window()->isVisible(); }
    template <typename T = QWidget>
    T& Part(const QString& name)
    {
        T* const found = Window() ? Window()->template findChild<T*>(name) : nullptr;
        if (!found)
            throw std::runtime_error("no such control: " + name.toStdString());
        return *found;
    }
    /// Or the main form's shortcuts would still take their keys.
    void Activate()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Window(); }));
    }
    QListWidget& List() { return Part<QListWidget>("ComboAppListIcon"); }
    QListWidget& Added() { return Part<QListWidget>("ListAddedIcons"); }

    static QStringList TextsOf(const QListWidget& list)
    {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row)
            texts << list.item(row)->text();
        return texts;
    }
    QStringList Offered() { return TextsOf(List()); }
    QStringList Waiting() { return TextsOf(Added()); }
    QStringList SelectedOf(const QListWidget& list)
    {
        QStringList texts;
        for (const QListWidgetItem* item : list.selectedItems())
            texts << item->text();
        texts.sort();
        return texts;
    }

    static QPoint PlaceOf(QListWidget& list, const QString& text)
    {
        for (int row = 0; row < list.count(); ++row)
            if (list.item(row)->text() == text) {
                list.scrollToItem(list.item(row));
                return list.visualItemRect(list.item(row)).center();
            }
        throw std::runtime_error("not in the list: " + text.toStdString());
    }
    void Pick(QListWidget& list, const QString& text, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, keys, PlaceOf(list, text));
    }
    void Pick(const QString& entry, Qt::KeyboardModifiers keys = {}) { Pick(List(), entry, keys); }
    void DoubleClick(
        QListWidget& list, const QString& text, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPoint place = PlaceOf(list, text);
        QTest::mouseClick(list.viewport(), button, {}, place);
        const QPointer<QWidget> viewport = list.viewport();
        QTest::mouseDClick(viewport, button, {}, place);
        if (viewport)
            QTest::mouseRelease(viewport, button, {}, place);
    }
    void DoubleClick(const QString& entry) { DoubleClick(List(), entry); }
    /// On the circle or square of an option, which a click on its middle could miss.
    void Choose(const QString& option)
    {
        auto& button = Part<QAbstractButton>(option);
        QTest::mouseClick(&button, Qt::LeftButton, {}, { 8, button.height() / 2 });
    }
    void Push(const QString& button)
    {
        QTest::mouseClick(&Part<QAbstractButton>(button), Qt::LeftButton);
    }
    void Apply() { Push("cmdApplyNewIcon"); }
    void Key(const QString& part, int key, Qt::KeyboardModifiers keys = {})
    {
        QTest::keyClick(&Part(part), static_cast<Qt::Key>(key), keys);
    }
    /// The key is being held down.
    void Repeat(const QString& part, int key, Qt::KeyboardModifiers keys = {})
    {
        QKeyEvent repeat(QEvent::KeyPress, key, keys, {}, true);
        QApplication::sendEvent(&Part(part), &repeat);
    }
    void Filter(const QString& text)
    {
        auto& filter = Part<QLineEdit>("txtFilter");
        filter.setFocus();
        filter.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&filter, Qt::Key_Delete);
        QTest::keyClicks(&filter, text);
    }

    bool IsChosen(const QString& option) { return Part<QAbstractButton>(option).isChecked(); }
    bool CanUseIn(const QString& control) { return Part(control).isEnabled(); }
    bool CanApply() { return CanUseIn("cmdApplyNewIcon"); }
    bool IsSeen(const QString& control) { return Part(control).isVisible(); }
    QString TextOf(const QString& button) { return Part<QAbstractButton>(button).text(); }

    QString SelectedNow()
    {
        const QTreeWidgetItem* const node = Nodes().selectedItems().value(0);
        return node ? node->text(0) : QString();
    }
    static bool HasRow(const std::string& label) { return FindIconRow(label).has_value(); }
    static std::string KeyOf(const std::string& label)
    {
        return Cell(label, &IconRow::ResourceKey);
    }
};

} // namespace vypx::test
