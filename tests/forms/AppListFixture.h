#pragma once

#include "WindowFixture.h"

#include "catalogs/CatalogFiles.h"
#include "catalogs/PrcSearch.h"
#include "support/PrcFiles.h"

#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace vypx::test {

/// The windows that edit the catalogs, over two applications and two items of Palm OS.
class AppListFixture : public WindowFixture {
protected:
    static constexpr auto Ok = QMessageBox::Ok, Cancel = QMessageBox::Cancel;

    AppListFixture()
    {
        StartupSearchRunning = ScanHasNew = false;
        SearchFolder.clear();
        PalmDesktopPath.clear();
        listPRC.clear();
        WriteText(program.File("AppList.dat"),
            Section("Alpha", "ALPH") + Section("Beta Panel", "BETA", "panl"));
        WriteText(program.File("PalmApp.dat"),
            Section("Palm Clock", "clck") + Section("Palm Mail", "mail"));
        std::filesystem::create_directory(program.File("palm"));
        Start();
    }

    static std::string Section(
        const std::string& name, const std::string& creator, const std::string& type = "appl")
    {
        return "[" + name + "]\nType=" + type + "\nCreator={" + creator + "}\n";
    }
    static std::string Apps() { return ReadText(AppListFile()); }
    static std::string PalmItems() { return ReadText(PalmAppFile()); }
    /// A file that can neither be read nor written any more.
    static void Block(const std::string& file)
    {
        std::filesystem::remove(file);
        std::filesystem::create_directory(file);
    }

    QString PalmFolder() { return QString::fromStdString(program.File("palm")); }
    /// A file in the folder that is searched.
    QString Prc(const std::string& file, const Bytes& bytes)
    {
        WriteBytes(program.File("palm/" + file), bytes);
        return PalmFolder() + "/" + QString::fromStdString(file);
    }
    /// Applications that no catalog has.
    void PutApplications(int count)
    {
        for (int i = 0; i < count; ++i)
            Prc("app" + std::to_string(i) + ".prc",
                PrcFile("New " + std::to_string(1000 + i), "appl", "N" + std::to_string(100 + i)));
    }

    void OpenEditor() { QTest::mouseClick(&Find<QPushButton>("cmdEditAppList"), Qt::LeftButton); }
    /// Null: it has gone.
    QDialog* Dialog(const QString& name)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return frame->findChild<QDialog*>(name);
    }
    QDialog* Editor() { return Dialog("frmEditAppList"); }
    QDialog* Manual() { return Dialog("frmAddAppManual"); }
    template <typename T = QWidget>
    T& Part(const QString& name)
    {
        return In<T>(Editor(), name);
    }
    static void ClickOn(QWidget& control)
    {
        QTest::mouseClick(&control, Qt::LeftButton, {}, { 8, control.height() / 2 });
    }
    void Press(const QString& name) { ClickOn(Part(name)); }
    void PressInManual(const QString& name) { ClickOn(In(Manual(), name)); }
    void ShowPalmPage() { Press("opt_PalmSys"); }

    QListWidget& List() { return Part<QListWidget>("ComboAppList"); }
    QStringList Names()
    {
        QStringList names;
        for (int row = 0; row < List().count(); ++row)
            names << List().item(row)->text();
        return names;
    }
    /// A click on the entry.
    void Choose(const QString& name, Qt::KeyboardModifiers keys = {})
    {
        QListWidgetItem* const item = List().findItems(name, Qt::MatchExactly).value(0);
        ASSERT_NE(item, nullptr) << name.toStdString();
        QTest::mouseClick(
            List().viewport(), Qt::LeftButton, keys, List().visualItemRect(item).center());
    }
    static void TypeOver(QLineEdit& edit, const QString& text)
    {
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        for (const QChar letter : text) { // which may be one that no key of QTest has
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
            QCoreApplication::sendEvent(&edit, &press);
        }
    }
    void Type(const QString& name, const QString& text) { TypeOver(Part<QLineEdit>(name), text); }
    void TypePalm(const QString& name, const QString& type, const QString& creator)
    {
        Type("txtPalmSysName", name);
        Type("txtPalmSysType", type);
        Type("txtPalmSysCreat", creator);
    }
    QStringList PalmTexts()
    {
        QStringList texts;
        for (const char* name : { "txtPalmSysName", "txtPalmSysType", "txtPalmSysCreat" })
            texts << Part<QLineEdit>(name).text();
        return texts;
    }
    bool IsOn(const QString& name) { return Part(name).isEnabled(); }
    bool IsSeen(const QString& name) { return Part(name).isVisible(); }

    /// The command shows this one box; OK is pressed.
    void PressAndExpect(const QString& button, const QString& text, const QString& title = {},
        QMessageBox::Icon icon = QMessageBox::NoIcon, QMessageBox::StandardButton answer = Ok)
    {
        ask.shown.clear();
        ask.Answer(answer);
        Press(button);
        ExpectBox(text, title, icon);
    }
    void ExpectBox(const QString& text, const QString& title = {},
        QMessageBox::Icon icon = QMessageBox::NoIcon)
    {
        ASSERT_EQ(ask.shown.size(), 1u);
        EXPECT_EQ(ask.shown.back().text, text);
        EXPECT_EQ(ask.shown.back().title, title.isEmpty() ? "VY Pixelworks" : title);
        EXPECT_EQ(ask.shown.back().icon, icon);
    }

    /// An iconset with an icon of Alpha and one of an application that no catalog knows.
    void OpenIconset(const std::string& file = "set.prc")
    {
        Open(Written(Iconset{ .name = "Set",
                         .resources = { { "iTbl", 1000,
                                            Join({ IndexRecord("appl", "ALPH", 3500, 0),
                                                IndexRecord("appl", "GAMM", 3501, 0) }) },
                             Picture(3500), Picture(3501) } }
                         .File(),
            file));
    }

    /// Drops files on the editor and lets it serve them. False: it refuses them.
    bool Drop(const QStringList& paths)
    {
        QMimeData files;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        files.setUrls(urls);
        QDragEnterEvent enter({ 2, 2 }, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(Editor(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({ 2, 2 }, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Editor(), &drop);
        QCoreApplication::processEvents();
        return true;
    }
};

} // namespace vypx::test
