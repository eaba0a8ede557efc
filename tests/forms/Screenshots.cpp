#include "catalogs/CatalogFiles.h"
#include "document/Catalogs.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/main/Form1.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/MDIForm1.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/ScriptedAsk.h"
#include "support/TempFolder.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <iostream>

namespace {

using namespace vypx;

/// What stands on the screen, window frames and all.
void Take(const QString& folder, const QString& name)
{
    QTest::qWait(300);
    const QString file = folder + "/" + name + ".png";
    if (!QGuiApplication::primaryScreen()->grabWindow(0).save(file))
        std::cerr << "can't write " << file.toStdString() << '\n';
}

/// The dialog that saves, as Save As shows it, with a name without an ending typed in.
void TakeSaveDialog(const QString& folder, QWidget& over)
{
    const test::TempFolder target;
    QTimer::singleShot(300, [&] {
        QWidget& dialog = *QApplication::activeModalWidget();
        dialog.move(80, 120);
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("My Icons");
        Take(folder, "save-dialog");
        dialog.close();
    });
    ScreenAsk().SaveFile(&over,
        { .title = "Save Iconset",
            .folder = QString::fromStdString(target.Path()),
            .filters = { "Vantry Iconset (*.prc *.pdb)" },
            .defaultEnding = "vpt" });
}

/// A round picture with soft edges and nothing around it.
QString WrittenBall(const test::TempFolder& target)
{
    QImage ball(64, 44, QImage::Format_ARGB32);
    ball.fill(Qt::transparent);
    QPainter painter(&ball);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient light(26, 14, 30);
    light.setColorAt(0, QColor(255, 240, 160));
    light.setColorAt(0.5, QColor(235, 110, 40));
    light.setColorAt(1, QColor(120, 20, 60));
    painter.setBrush(light);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(12, 2, 40, 40);
    painter.end();
    const QString path = QString::fromStdString(target.File("ball.png"));
    ball.save(path);
    return path;
}

/// The ball as the high-res picture of an icon, and what is made of it for the low-res slot, at
/// each depth.
void TakeImports(const QString& folder, MDIForm1& frame, test::ScriptedAsk& ask)
{
    const test::TempFolder target;
    const QString ball = WrittenBall(target);
    auto& tree = *frame.findChild<IconTreeView*>("TreeView1");
    for (const auto& [depth, name] : { std::pair{ ColorDepth::Bits16, "import-16-bit" },
             std::pair{ ColorDepth::Bits8, "import-8-bit" },
             std::pair{ ColorDepth::Bits4, "import-4-bit" } }) {
        DefaultColorDepth = depth;
        IconsetChanged = false;
        ask.Choose(VYPX_SHIPPED_DATA "/samples/first-set.prc");
        frame.findChild<QAction*>("mnuOpen")->trigger();
        tree.setCurrentItem(tree.NodeOf("Palm Calendar (palmOne) (Large Icon)"));
        for (const char* button : { "cmdDelSM", "cmdDelLG" })
            frame.findChild<QPushButton*>(button)->click();
        ask.Choose(ball);
        frame.findChild<QPushButton*>("cmdImportLG")->click();
        Take(folder, name);
    }
    DefaultColorDepth = ColorDepth::Bits16;
    IconsetChanged = false;
}

/// Hills under a low sun, of any size.
QString WrittenHills(const test::TempFolder& target, const QSize& size)
{
    QImage hills(size, QImage::Format_RGB32);
    QPainter painter(&hills);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 100.0, size.height() / 100.0);
    QLinearGradient sky(0, 0, 0, 70);
    sky.setColorAt(0, QColor(70, 120, 190));
    sky.setColorAt(1, QColor(250, 210, 150));
    painter.fillRect(0, 0, 100, 100, sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 240, 190));
    painter.drawEllipse(QRectF(60, 36, 16, 16));
    const std::pair<QColor, int> ranges[] = { { QColor(120, 130, 120), 48 },
        { QColor(80, 110, 70), 60 }, { QColor(40, 70, 40), 76 } };
    for (const auto& [colour, height] : ranges) {
        painter.setBrush(colour);
        painter.drawEllipse(QRectF(-30 + height, height, 90, 90));
        painter.drawEllipse(QRectF(10 - height, height + 4, 90, 90));
    }
    painter.end();
    const QString path = QString::fromStdString(target.File("hills.png"));
    hills.save(path);
    return path;
}

/// Names as handhelds have them, so many that the list scrolls.
void WriteApplications(const std::string& file, int count)
{
    const char* const firsts[] = { "Pocket", "Tiny", "My", "Bike", "Star", "Diet", "Euro",
        "Chess" };
    const char* const seconds[] = { "Planner", "Atlas", "Ledger", "Tutor", "Timer", "Notes" };
    std::string text;
    for (int i = 0; i < count; ++i) {
        const QString creator = QString("A%1").arg(i, 3, 10, QChar('0'));
        const QString name = QString("%1 %2 %3").arg(firsts[i % 8], seconds[i % 6]).arg(i / 4 + 1);
        text += QString("[%1%2]\nType=%3\nCreator={%4}\n")
                    .arg(name, i % 9 == 8 ? " Panel" : "", i % 9 == 8 ? "panl" : "appl", creator)
                    .toStdString();
    }
    test::WriteText(file, text);
}

/// The window for the catalogs on both its pages, amid a search, and its companion.
void TakeAppList(const QString& folder, MDIForm1& frame, test::ScriptedAsk& ask)
{
    const test::TempFolder palm;
    const std::string searched = palm.File("Palm Desktop/What I keep of the programs for it/games");
    std::filesystem::create_directories(searched);
    test::WriteText(searched + "/Chess for two players and more.prc", "");
    WriteApplications(AppListFile(), 400);
    frame.findChild<QPushButton*>("cmdEditAppList")->click();
    auto& window = *frame.findChild<QDialog*>("frmEditAppList");
    const auto click = [&](const char* name) { window.findChild<QAbstractButton*>(name)->click(); };
    window.move(60, 80);
    Take(folder, "edit-app-list");
    QTimer whilePathStands;
    QObject::connect(&whilePathStands, &QTimer::timeout, [&] {
        if (window.findChild<QLabel*>("lblSearchingFolder")->text().isEmpty())
            return;
        whilePathStands.stop();
        Take(folder, "edit-app-list-search");
    });
    whilePathStands.start(0);
    ask.ChooseFolder(QString::fromStdString(searched));
    click("cmdAddPrcByFolder");
    click("cmdManual");
    auto& manual = *frame.findChild<QDialog*>("frmAddAppManual");
    manual.move(200, 300);
    Take(folder, "add-app-manual");
    manual.close();
    click("opt_PalmSys");
    Take(folder, "edit-app-list-palm");
    click("optEditSys");
    auto& list = *window.findChild<QListWidget*>("ComboAppList");
    list.setCurrentRow(7);
    Take(folder, "edit-app-list-palm-edit");
    window.close();
}

/// The crop window in its modes, and the window for its border's colour.
void TakeCrop(const QString& folder, MDIForm1& frame, test::ScriptedAsk& ask)
{
    const test::TempFolder target;
    auto& tree = *frame.findChild<IconTreeView*>("TreeView1");
    tree.setCurrentItem(tree.NodeOf("Palm Calendar (palmOne) (Large Icon)"));
    ask.Choose(WrittenHills(target, { 900, 600 }));
    frame.findChild<QPushButton*>("cmdImportLG")->click();
    auto& crop = *frame.findChild<QDialog*>("frmCrop");
    crop.move(60, 80);
    Take(folder, "crop");
    crop.findChild<QPushButton*>("cmdChangeBackColor")->click();
    auto& border = *crop.findChild<QDialog*>("frmChangeBackColor");
    border.move(300, 300);
    border.findChild<QScrollBar*>("VScrollBlue")->setValue(120);
    Take(folder, "crop-border-color");
    border.findChild<QPushButton*>("cmdOK")->click();
    crop.findChild<QRadioButton*>("optStretch")->click();
    Take(folder, "crop-stretch");
    crop.findChild<QPushButton*>("cmdOK")->click();
}

/// The window for the transparent colour over the icon on show, its background green: the mark of
/// the keys beside the picture's middle, at the larger size.
void TakeTransparency(const QString& folder, MDIForm1& frame)
{
    frame.findChild<QPushButton*>("cmdChangeTC_LG")->click();
    auto& window = *frame.findChild<QDialog*>("frmChangeTC");
    window.move(60, 80);
    window.findChild<QScrollBar*>("VScrollBlue")->setValue(90);
    window.findChild<QScrollBar*>("VScrollGrn")->setValue(140);
    window.findChild<QPushButton*>("cmdZoom4X")->click();
    auto& view = *window.findChild<QWidget*>("picMain");
    view.setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 15; ++i)
        QTest::keyClick(&view, i < 5 ? Qt::Key_Down : Qt::Key_Right);
    Take(folder, "change-transparent-color");
    QTest::keyClick(&view, Qt::Key_Escape);
}

/// The window for new icons and new owners in its modes, with an application of a long name among
/// the catalog's.
void TakeAddIcon(const QString& folder, MDIForm1& frame)
{
    const auto button = [&](const char* name) { return frame.findChild<QPushButton*>(name); };
    const auto window = [&]() -> QDialog& {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return *frame.findChild<QDialog*>("frmAddIcon");
    };
    const auto choose = [&](const char* name) {
        window().findChild<QAbstractButton*>(name)->click();
    };
    const auto list = [&] { return window().findChild<QListWidget*>("ComboAppListIcon"); };
    auto& tree = *frame.findChild<IconTreeView*>("TreeView1");
    AppTable.push_back(
        { "An application with a name that is longer than any list is wide", "appl", "LONG", "" });
    tree.setCurrentItem(tree.NodeOf("Palm Calendar (palmOne) (Large Icon)"));
    button("cmdAddIcon")->click();
    window().move(60, 80);
    list()->setCurrentRow(0);
    choose("cmdAddtoList");
    choose("optPalm");
    choose("chkBothSizes");
    list()->item(3)->setSelected(true);
    list()->item(5)->setSelected(true);
    choose("cmdAddtoList");
    list()->setCurrentRow(7);
    list()->item(9)->setSelected(true);
    Take(folder, "add-icon");
    window().findChild<QLineEdit*>("txtFilter")->setText("palm m");
    Take(folder, "add-icon-filter");
    button("cmdAssignApp")->click();
    choose("optPalm");
    Take(folder, "change-icon");
    choose("chkCreateShared");
    Take(folder, "share-icon");
    choose("cmdCancelNewIcon");
    AppTable.pop_back();
}

/// What greets the user, each window left by a key, and what the Help menu shows.
void TakeGreeting(const QString& folder, MDIForm1& frame)
{
    const auto leave = [&](const char* name, Qt::Key key) {
        auto& window = *frame.findChild<QDialog*>(name);
        Take(folder, QString(name).mid(3).toLower());
        QTest::keyClick(window.focusWidget(), key);
    };
    leave("frmSplash", Qt::Key_Space);
    leave("frmTip", Qt::Key_Escape);
    frame.findChild<QAction*>("mnuAbout")->trigger();
    leave("frmAbout", Qt::Key_Return);
}

/// A picture that was dropped on the form.
void TakeDrop(const QString& folder, MDIForm1& frame)
{
    const test::TempFolder target;
    DroppedFileName = WrittenBall(target).toStdString();
    frame.Form().ChkDragFile();
    auto& window = *frame.findChild<QDialog*>("frmDropIconTarget");
    window.move(120, 160);
    Take(folder, "picture-dropped");
    window.findChild<QPushButton*>("cmdCancel")->click();
}

/// The help over the main form: its contents, and what a search finds.
void TakeHelp(const QString& folder, MDIForm1& frame)
{
    frame.findChild<QAction*>("mnuManual")->trigger();
    const auto windows = QApplication::topLevelWidgets();
    QWidget* const help = *std::find_if(windows.begin(), windows.end(),
        [](const QWidget* window) { return window->objectName() == "frmHelp"; });
    help->move(60, 80);
    Take(folder, "help-contents");
    QTest::keyClick(help, Qt::Key_F, Qt::ControlModifier);
    auto& words = *help->findChild<QLineEdit*>("txtSearch");
    QTest::keyClicks(&words, "fringe");
    QTest::keyClick(&words, Qt::Key_Return);
    Take(folder, "help-search");
    help->close();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    const test::TempFolder user; // the user's own settings stay out of it
    QSettings::setPath(
        QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(user.Path()));
    if (argc != 2) {
        std::cerr << "usage: screenshots FOLDER\n";
        return 2;
    }
    const QString folder = argv[1];
    const test::TempFolder programFolder;
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
        std::filesystem::copy_file(
            test::TestData("iconsets/catalogs/") + name, programFolder.File(name));
    test::WriteText(
        programFolder.File("TIPOFDAY.TXT"), "Press F1 in any window to read about that window.\n");
    test::ScriptedAsk ask;
    // Beside the main form, where a user would have put it.
    test::WriteText(programFolder.File("VYPX.ini"),
        "[Preview Option Window]\nX-Pos=11640\nY-Pos=0\n"
        "[IconStatWindow]\nX-Pos=11640\nY-Pos=4395\n"
        "[Shared Icons Window]\nX-Pos=11640\nY-Pos=7065\n"
        "[Main Window Size]\nWidth=15000\n");
    MDIForm1 frame(ask);
    frame.Start(QString::fromStdString(programFolder.Path()), {});
    frame.move(20, 40);
    TakeGreeting(folder, frame);
    Take(folder, "main-form-empty");

    frame.findChild<QAction*>("mnuNew")->trigger();
    Take(folder, "select-color-depth");
    frame.findChild<QDialog*>("frmSelectCDepth")->findChild<QRadioButton*>("opt8Bit")->click();
    Take(folder, "select-color-depth-8-bit");
    frame.findChild<QDialog*>("frmSelectCDepth")->findChild<QRadioButton*>("opt16Bit")->click();
    frame.findChild<QPushButton*>("cmdDoneCDepth")->click();
    Take(folder, "new-iconset");
    frame.findChild<QPushButton*>("cmdCancelName")->click();
    PromptColorDepth = WarnOverwrite = false;
    const auto open = [&](const char* name) {
        ask.Choose(QString(VYPX_TEST_DATA "/iconsets/") + name);
        frame.findChild<QAction*>("mnuOpen")->trigger();
    };
    const auto select = [&](const char* label) {
        auto& tree = *frame.findChild<IconTreeView*>("TreeView1");
        tree.setCurrentItem(tree.NodeOf(label));
    };
    frame.findChild<QAction*>("mnuOptions")->trigger();
    auto& options = *frame.findChild<QDialog*>("frmProgOptions");
    options.move(60, 80);
    Take(folder, "program-options");
    options.findChild<QRadioButton*>("opt8Bit")->click();
    Take(folder, "program-options-8-bit");
    options.findChild<QRadioButton*>("opt16Bit")->click();
    open("owners.prc");
    select("Compass (Large Icon)");
    Take(folder, "program-options-locked");
    options.close();
    open("owners.prc");
    select("Compass (Large Icon)");
    Take(folder, "main-form-owners");
    auto& shared = *frame.findChild<QWidget*>("listShared");
    QTest::mouseClick(
        shared.findChild<QWidget*>("qt_scrollarea_viewport"), Qt::LeftButton, {}, { 30, 10 });
    Take(folder, "shared-icon-clicked");
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
        std::filesystem::copy_file(std::string(VYPX_SHIPPED_DATA) + "/" + name,
            programFolder.File(name), std::filesystem::copy_options::overwrite_existing);
    ReadCatalogs([](std::string_view) {});
    TakeImports(folder, frame, ask);
    ask.Choose(VYPX_SHIPPED_DATA "/samples/first-set.prc");
    frame.findChild<QAction*>("mnuOpen")->trigger();
    select("Palm Calendar (palmOne) (Large Icon)");
    Take(folder, "main-form");
    TakeTransparency(folder, frame);
    IconsetChanged = false;
    auto& preview = *frame.findChild<QWidget*>("frmPreviewOpt");
    const auto bar = [&](const char* name) { return preview.findChild<QScrollBar*>(name); };
    bar("VScrollRed")->setValue(170);
    preview.findChild<QCheckBox*>("chkBackGray")->click();
    bar("VScrollRed")->setFocus();
    Take(folder, "preview-options");
    preview.findChild<QCheckBox*>("chkBackGray")->click();
    bar("VScrollGrn")->setValue(0);
    bar("VScrollRed")->setValue(0);
    bar("VScrollBlue")->setValue(255);

    TakeHelp(folder, frame);
    TakeAddIcon(folder, frame);
    IconsetChanged = false;
    TakeDrop(folder, frame);
    TakeCrop(folder, frame, ask);
    TakeAppList(folder, frame, ask);

    // The whole road: mark an icon, save under a name, close, open what was saved.
    select("Palm Calculator (Large Icon)");
    QTest::keyClick(frame.findChild<IconTreeView*>("TreeView1"), Qt::Key_R);
    Take(folder, "road-1-marked");
    TakeSaveDialog(folder, frame);
    ask.SaveTo(QString::fromStdString(programFolder.File("saved.prc")));
    frame.findChild<QAction*>("mnuSaveAs")->trigger();
    frame.findChild<QAction*>("mnuCloseIconset")->trigger();
    Take(folder, "road-2-saved-and-closed");
    ask.Choose(QString::fromStdString(programFolder.File("saved.prc")));
    frame.findChild<QAction*>("mnuOpen")->trigger();
    select("Palm Calendar (palmOne) (Small Icon)");
    Take(folder, "road-3-opened-again");
    std::filesystem::remove(WorkPath("tAIB3500.bmp"));
    frame.findChild<QAction*>("mnuSave")->trigger();
    Take(folder, "not-saved");
    frame.Form().ExitProgram();
    return 0;
}
