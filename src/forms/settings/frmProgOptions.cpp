#include "forms/settings/frmProgOptions.h"

#include "document/Document.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "forms/common/UserStore.h"
#include "forms/settings/DepthControls.h"
#include "forms/settings/InstallWayText.h"
#include "settings/Inifile.h"
#include "settings/Settings.h"
#include "ui_frmProgOptions.h"

#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace vypx {

namespace {

constexpr int OpenAt = 300; // twips from the left and the top

std::string FolderIn(const QLineEdit& edit) { return edit.text().trimmed().toStdString(); }

/// What the column of the longest plain text lacks to show it in one line.
int ForWholeLines(const QWidget& options)
{
    int lacking = 0;
    for (const QLabel* label : options.findChildren<QLabel*>())
        if (label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored)
            lacking = std::max(lacking,
                label->fontMetrics().horizontalAdvance(label->text()) + 4
                    - label->parentWidget()->layout()->sizeHint().width());
    return lacking + 20; // the frame's margins
}

/// As large as the options need, but never beyond the screen's free area: what has no room then
/// scrolls, and the row with the button stays in sight.
QSize SizeOnScreen(const QDialog& window, const QWidget& options, const QScrollArea& area)
{
    constexpr int FrameOfWindow = 40; // pixels, with its title
    for (QLayout* layout : window.findChildren<QLayout*>())
        layout->invalidate(); // captions and look have changed since they were measured
    const int bar = area.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize chrome = window.sizeHint() - area.sizeHint();
    const QSize free = window.screen()->availableGeometry().size();
    const int left = PixelsFromTwips(OpenAt);
    const QSize most(free.width() - left - 4, free.height() - left - FrameOfWindow);
    const int width = std::min(
        options.sizeHint().width() + ForWholeLines(options) + chrome.width() + bar, most.width());
    const int height = options.layout()->heightForWidth(width - chrome.width() - bar);
    return { width, std::min(height + chrome.height(), most.height()) };
}

} // namespace

frmProgOptions::frmProgOptions(Ask& ask, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmProgOptions>())
    , m_ask(ask)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(PixelsFromTwips(OpenAt), PixelsFromTwips(OpenAt));
    for (QLineEdit* edit : { m_ui->txtPalmUserID, m_ui->txtVstring })
        edit->setValidator(Latin1Validator(*edit));
    for (QWidget* control : std::initializer_list<QWidget*>{
             m_ui->lbl_txtPalmSyncFolder, m_ui->txtPalmSyncFolder, m_ui->cmdBrowsePalmSync })
        control->setVisible(HasPalmSync);
    m_ui->lblInstallWay->setText(QString(3, '\n')); // room for four lines
    ShowDepthWarning(*m_ui, true); // there is room for it, whether it is needed now or not
    resize(SizeOnScreen(*this, *m_ui->allOptions, *m_ui->scrollOptions));
    ShowSettings();
    ConnectBoxes();
    ConnectDepths();
    ConnectResolutions();
    ConnectFolders();
    connect(
        m_ui->cmdDoneOptions, &QPushButton::clicked, this, &frmProgOptions::cmdDoneOptions_Click);
}

frmProgOptions::~frmProgOptions() = default;

void frmProgOptions::ShowSettings()
{
    m_ui->txtPalmUserID->setText(FromLatin1(PalmUserID));
    for (const Folder& folder : Folders())
        folder.edit.setText(PathText(folder.setting));
    ShowInstallWay();
    m_ui->txtVstring->setText(FromLatin1(VersionString));
    m_ui->chkRemeberDirs->setChecked(UseLastDirs);
    m_ui->chkCreateLowRes->setChecked(AutoCreateLowRes);
    m_ui->chkCreateBak->setChecked(CreateBackup);
    m_ui->chkKeepUnknown->setChecked(KeepUnknown);
    m_ui->chkWarnOverwrite->setChecked(WarnOverwrite);
    m_ui->chkShowSplash->setChecked(ShowSplash);
    ShowTipsOption();
    m_ui->chkStartupSearch->setChecked(StartupSearch);
    m_ui->chkRememberBackColor->setChecked(RememberPreviewColor);
    m_ui->chkPromptForCDepth->setChecked(PromptColorDepth);
    (UsePackbits ? m_ui->optPalm40 : m_ui->optPalm35)->setChecked(true);
    ShowChoices();
    ShowDepthLock();
}

void frmProgOptions::ShowTipsOption() { m_ui->chkShowTips->setChecked(ShowTipsAtStartup()); }

void frmProgOptions::ShowChoices()
{
    CheckResolution(*m_ui);
    CheckDepth(*m_ui);
}

void frmProgOptions::ShowDepthLock()
{
    m_ui->lblCantChange->setVisible(FileLoaded);
    for (QWidget* control : std::initializer_list<QWidget*>{ m_ui->opt16Bit, m_ui->opt8Bit,
             m_ui->opt4Bit, m_ui->chkPromptForCDepth, m_ui->frameCD })
        control->setEnabled(!FileLoaded);
    ShowWarning();
}

void frmProgOptions::ShowWarning()
{
    ShowDepthWarning(*m_ui, !m_ui->opt16Bit->isChecked() && !FileLoaded);
}

void frmProgOptions::ConnectBoxes()
{
    const auto setsVariable = [this](QAbstractButton* box, bool& variable) {
        connect(box, &QAbstractButton::toggled, this, [&variable](bool on) { variable = on; });
    };
    setsVariable(m_ui->chkRemeberDirs, UseLastDirs);
    setsVariable(m_ui->chkCreateLowRes, AutoCreateLowRes);
    setsVariable(m_ui->chkCreateBak, CreateBackup);
    setsVariable(m_ui->chkKeepUnknown, KeepUnknown);
    setsVariable(m_ui->chkWarnOverwrite, WarnOverwrite);
    setsVariable(m_ui->chkShowSplash, ShowSplash);
    setsVariable(m_ui->chkStartupSearch, StartupSearch);
    setsVariable(m_ui->chkRememberBackColor, RememberPreviewColor);
    setsVariable(m_ui->chkPromptForCDepth, PromptColorDepth);
    setsVariable(m_ui->optPalm40, UsePackbits);
    connect(m_ui->chkShowTips, &QAbstractButton::toggled, this, &SaveShowTipsAtStartup);
}

void frmProgOptions::ConnectDepths()
{
    const auto setsDepth = [this](QAbstractButton* option, ColorDepth depth) {
        connect(option, &QAbstractButton::toggled, this, [this, depth](bool on) {
            ShowWarning();
            if (!on || DefaultColorDepth == depth)
                return;
            DefaultColorDepth = depth;
            emit DepthChosen();
        });
    };
    setsDepth(m_ui->opt4Bit, ColorDepth::Bits4);
    setsDepth(m_ui->opt8Bit, ColorDepth::Bits8);
    setsDepth(m_ui->opt16Bit, ColorDepth::Bits16);
}

void frmProgOptions::ConnectResolutions()
{
    const auto setsResolution = [this](QAbstractButton* option, bool highOnly, bool lowOnly) {
        connect(option, &QAbstractButton::toggled, this, [this, highOnly, lowOnly](bool on) {
            if (!on || (HighResOnly == highOnly && LowResOnly == lowOnly))
                return;
            HighResOnly = highOnly;
            LowResOnly = lowOnly;
            emit ResolutionChosen();
        });
    };
    setsResolution(m_ui->optBothRes, false, false);
    setsResolution(m_ui->optHighResOnly, true, false);
    setsResolution(m_ui->optLowResOnly, false, true);
}

std::array<frmProgOptions::Folder, 2> frmProgOptions::Folders() const
{
    return { {
        { *m_ui->txtPalmDesktopFolder, *m_ui->cmdBrowsePalmDesktop, PalmDesktopFolder,
            QT_TR_NOOP("Palm Desktop") },
        { *m_ui->txtPalmSyncFolder, *m_ui->cmdBrowsePalmSync, PalmSyncFolder,
            QT_TR_NOOP("palm-sync") },
    } };
}

void frmProgOptions::ConnectFolders()
{
    for (const Folder& folder : Folders())
        connect(&folder.browse, &QPushButton::clicked, this, [this, folder] { Browse(folder); });
    connect(m_ui->txtPalmSyncFolder, &QLineEdit::textChanged, this, [this] { ShowInstallWay(); });
}

void frmProgOptions::Browse(const Folder& folder)
{
    const QString chosen = m_ask.ChooseFolder(this,
        { .title = tr("%1 Folder").arg(tr(folder.name)), .folder = folder.edit.text().trimmed() });
    if (!chosen.isEmpty())
        folder.edit.setText(chosen);
}

void frmProgOptions::ShowInstallWay()
{
    const QString way = InstallWayText(FolderIn(*m_ui->txtPalmSyncFolder));
    m_ui->lblInstallWay->setText(way);
    m_ui->lblInstallWay->setToolTip(TipText(way)); // for a name that has no room in a line
    m_ui->txtPalmSyncFolder->setAccessibleDescription(way);
}

/// Folders may have been made or gone while the user was elsewhere.
bool frmProgOptions::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        ShowInstallWay();
    return QDialog::event(event);
}

/// False: the settings file can't hold one of them, which the user is told.
bool frmProgOptions::FoldersFit()
{
    for (const Folder& folder : Folders()) {
        if (FitsKey(FolderIn(folder.edit)))
            continue;
        folder.edit.setFocus();
        m_ask.Show(this,
            { .text = tr("The path of the %1 folder is too long to be kept: the settings hold %2 "
                         "bytes of it at most. Please choose another folder.")
                          .arg(tr(folder.name))
                          .arg(MaxValueLength),
                .icon = QMessageBox::Information });
        return false;
    }
    return true;
}

void frmProgOptions::TakeFolders()
{
    for (const Folder& folder : Folders())
        if (const std::string path = FolderIn(folder.edit); FitsKey(path))
            folder.setting = path;
}

void frmProgOptions::TakeTexts()
{
    QString version = m_ui->txtVstring->text();
    while (version.endsWith(' '))
        version.chop(1);
    VersionString = version.isEmpty() ? "3.20" : ToLatin1(version);
    PalmUserID = ToLatin1(m_ui->txtPalmUserID->text().trimmed());
    emit Done();
}

void frmProgOptions::cmdDoneOptions_Click() { close(); }

void frmProgOptions::CloseAnyway()
{
    m_closesAnyway = true;
    close();
}

void frmProgOptions::reject()
{
    if (!m_closesAnyway && !FoldersFit())
        return;
    TakeFolders();
    TakeTexts();
    QDialog::reject();
}

} // namespace vypx
