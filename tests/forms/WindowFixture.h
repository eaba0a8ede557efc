#pragma once

#include "document/Catalogs.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/main/Form1.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/MDIForm1.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/ScriptedAsk.h"
#include "support/TempFolder.h"

#include <QAction>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <memory>

namespace vypx::test {

/// The program in a fresh folder, not started yet.
class WindowFixture : public ::testing::Test {
protected:
    WindowFixture()
    {
        SetDefaultSettings();
        ResetDocument();
        ResetCatalogs();
        for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
            std::filesystem::copy_file(
                std::string(VYPX_SHIPPED_DATA) + "/" + name, program.File(name));
    }

    /// Before a start: what stands in the settings file.
    void WriteSettings(const std::string& text) { WriteText(program.File("VYPX.ini"), text); }
    std::string Settings() const { return ReadText(program.File("VYPX.ini")); }

    /// The program as at any later start, with nothing that greets but what the settings ask for.
    void Start()
    {
        AddUnlessSaid("[Splash Screen]\n", "Show splash screen at startup=False\n");
        AddUnlessSaid("[Main Window Size]\n", "Width=14000\nHeight=9800\n");
        StartAsItIs();
    }
    void StartAsItIs()
    {
        frame = std::make_unique<MDIForm1>(ask);
        frame->Start(QString::fromStdString(program.Path()), {});
        PromptColorDepth = false; // where a test does not want it
    }

    template <typename T>
    T& Find(const QString& name)
    {
        T* const found = frame->findChild<T*>(name);
        if (!found)
            throw std::runtime_error("no such control: " + name.toStdString());
        return *found;
    }
    template <typename T = QWidget>
    static T& In(QWidget* window, const QString& name)
    {
        T* const found = window ? window->findChild<T*>(name) : nullptr;
        if (!found)
            throw std::runtime_error("no such control: " + name.toStdString());
        return *found;
    }
    QAction& Entry(const QString& name) { return Find<QAction>(name); }
    /// Whether the button or menu entry of that name is enabled.
    bool CanUse(const QString& name)
    {
        if (const auto* control = frame->findChild<QWidget*>(name))
            return control->isEnabled();
        return Entry(name).isEnabled();
    }
    IconTreeView& Nodes() { return Find<IconTreeView>("TreeView1"); }
    QString Status(int panel)
    {
        return Find<QLabel>("StatusBar1_Panel" + QString::number(panel)).text();
    }
    QStringList NodeTexts()
    {
        QStringList texts;
        for (int i = 0; Nodes().Root() && i < Nodes().Root()->childCount(); ++i)
            texts << Nodes().Root()->child(i)->text(0);
        return texts;
    }

    /// A file in the program's folder.
    QString Written(const Bytes& file, const std::string& name = "set.prc")
    {
        WriteBytes(program.File(name), file);
        return QString::fromStdString(program.File(name));
    }
    /// Chooses File > Open and this file.
    void Open(const QString& path)
    {
        ask.Choose(path);
        Entry("mnuOpen").trigger();
    }
    QStringList Messages() const
    {
        QStringList texts;
        for (const Box& box : ask.shown)
            texts << box.text;
        return texts;
    }

    /// Whether files could be dropped on it.
    static bool TakesFiles(QWidget& target)
    {
        QMimeData files;
        files.setUrls({ QUrl::fromLocalFile("/tmp/a.prc") });
        QDragEnterEvent enter({ 2, 2 }, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&target, &enter);
        return enter.isAccepted();
    }

    TempFolder program;
    ScriptedAsk ask;
    std::unique_ptr<MDIForm1> frame;

private:
    void AddUnlessSaid(const std::string& section, const std::string& lines)
    {
        const std::string file = program.File("VYPX.ini");
        const std::string said = FileExists(file) ? ReadText(file) : "";
        if (!DirExists(file) && said.find(section) == std::string::npos)
            WriteText(
                file, said + (said.empty() || said.ends_with('\n') ? "" : "\n") + section + lines);
    }
};

/// A picture resource of one pixel.
inline Resource Picture(int id, const std::string& type = "tAIB")
{
    return { .type = type, .id = id, .data = LowRecord(8) };
}

} // namespace vypx::test
