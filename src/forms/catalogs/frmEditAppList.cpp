#include "forms/catalogs/frmEditAppList.h"

#include "catalogs/AddApplication.h"
#include "catalogs/AvailableIcons.h"
#include "catalogs/CatalogEdits.h"
#include "catalogs/PalmSystemPage.h"
#include "document/Document.h"
#include "forms/catalogs/CatalogBoxes.h"
#include "forms/common/DropTarget.h"
#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "settings/Settings.h"
#include "ui_frmEditAppList.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>

namespace vypx {

namespace {

/// Of what was dropped.
QStringList PrcFiles(const DraggedData& data)
{
    QStringList files;
    for (const QString& file : data.files)
        if (file.endsWith(".prc", Qt::CaseInsensitive))
            files << file;
    return files;
}

} // namespace

frmEditAppList::frmEditAppList(Ask& ask, Doors doors, QWidget& form)
    : QDialog(&form)
    , m_ui(std::make_unique<Ui::frmEditAppList>())
    , m_ask(ask)
    , m_doors(std::move(doors))
    , m_show([this](const CatalogBox& box) { return ShowCatalogBox(m_ask, this, box); })
    , m_lastFolder(PathText(PalmDesktopFolder))
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    KeepRoom({ m_ui->frmPalmSys, m_ui->lblCloseIconset, m_ui->lblSearching, m_ui->cmdStopSearch });
    for (QLineEdit* edit :
        { m_ui->txtPalmSysName, m_ui->txtPalmSysType, m_ui->txtPalmSysCreat, m_ui->txtIconSearch })
        edit->setValidator(Latin1Validator(*edit));
    move(DialogPlace());
    m_ui->opt_Apps->setChecked(true);
    m_ui->optNewSys->setChecked(true);
    ShowEnabled();
    Connect();
    m_ui->txtFilter->setFocus();
}

frmEditAppList::~frmEditAppList() = default;

void frmEditAppList::Connect()
{
    const auto clicks = [this](const QPushButton* button, auto handler) {
        connect(button, &QPushButton::clicked, this, handler);
    };
    clicks(m_ui->cmdGetAppsAuto, &frmEditAppList::AutomaticAsked);
    clicks(m_ui->cmdAddPrcByFolder, &frmEditAppList::cmdAddPrcByFolder_Click);
    clicks(m_ui->cmdAddSingle, &frmEditAppList::cmdAddSingle_Click);
    clicks(m_ui->cmdManual, &frmEditAppList::ManualAsked);
    clicks(m_ui->cmdDeleteApp, &frmEditAppList::cmdDeleteApp_Click);
    clicks(m_ui->cmdPalmSysApply, &frmEditAppList::cmdPalmSysApply_Click);
    clicks(m_ui->cmdSearchIcon, &frmEditAppList::cmdSearchIcon_Click);
    clicks(m_ui->cmdStopSearch, &frmEditAppList::StopAsked);
    clicks(m_ui->cmdApplyAndReload, &frmEditAppList::ReloadAsked);
    clicks(m_ui->cmdHelp, &frmEditAppList::HelpAsked);
    clicks(m_ui->cmdAppEditDone, &frmEditAppList::accept);
    for (const QRadioButton* page : { m_ui->opt_Apps, m_ui->opt_PalmSys })
        connect(page, &QRadioButton::toggled, this, &frmEditAppList::opt_Click);
    for (const QRadioButton* mode : { m_ui->optNewSys, m_ui->optEditSys })
        connect(mode, &QRadioButton::toggled, this, &frmEditAppList::optSys_Click);

    CatalogList& list = *m_ui->ComboAppList;
    connect(m_ui->txtFilter, &QLineEdit::textChanged, &list, &CatalogList::Narrow);
    connect(&list, &CatalogList::Filled, this, [this, &list] {
        m_ui->lblShown->setText(tr("%1 of %2 shown").arg(list.count()).arg(list.Total()));
    });
    connect(&list, &QListWidget::itemSelectionChanged, this, &frmEditAppList::list_Click);
    connect(&list, &QListWidget::itemClicked, this, &frmEditAppList::list_Click);
    for (QObject* watched :
        std::initializer_list<QObject*>{ &list, m_ui->txtFilter, m_ui->txtPalmSysName,
            m_ui->txtPalmSysType, m_ui->txtPalmSysCreat, m_ui->txtIconSearch })
        watched->installEventFilter(this);
    const auto canAdd = [this] {
        return isVisible() && m_ui->cmdAddSingle->isEnabled() && !QApplication::activeModalWidget();
    };
    const auto takes = [](const DraggedData& dragged) { return !PrcFiles(dragged).isEmpty(); };
    TakeDrops(*this,
        { .isReady = canAdd, .takes = takes, .take = [this, canAdd](const DraggedData& dragged) {
             for (const QString& file : PrcFiles(dragged))
                 if (canAdd())
                     AddFile(file);
         } });
}

bool frmEditAppList::BoolApps() const { return m_ui->opt_Apps->isChecked(); }

bool frmEditAppList::BoolEditSys() const { return m_ui->optEditSys->isChecked(); }

/// All that is enabled or hidden follows from the page, the document and whether a search runs.
void frmEditAppList::ShowEnabled()
{
    const bool idle = !m_isSearching;
    for (QWidget* control : std::initializer_list<QWidget*>{
             m_ui->cmdGetAppsAuto, m_ui->cmdAddPrcByFolder, m_ui->cmdAddSingle, m_ui->cmdManual })
        control->setEnabled(idle && BoolApps());
    for (QWidget* control : std::initializer_list<QWidget*>{ m_ui->opt_Apps, m_ui->opt_PalmSys,
             m_ui->frmPalmSys, m_ui->cmdSearchIcon, m_ui->cmdAppEditDone })
        control->setEnabled(idle);
    m_ui->frmPalmSys->setVisible(!BoolApps());
    m_ui->cmdPalmSysApply->setEnabled(!BoolEditSys() || !SelectedItem.empty());
    m_ui->cmdDeleteApp->setEnabled(idle && !FileLoaded);
    m_ui->lblCloseIconset->setVisible(FileLoaded);
    m_ui->cmdApplyAndReload->setEnabled(idle && FileLoaded && !FileName.empty());
    m_ui->lblSearching->setVisible(m_isSearching);
    m_ui->cmdStopSearch->setVisible(m_isSearching);
}

void frmEditAppList::ShowSearching(bool on)
{
    // Or the next press of the space bar would use another command.
    if (on || m_ui->cmdStopSearch->hasFocus())
        m_ui->ComboAppList->setFocus();
    m_isSearching = on;
    ShowEnabled();
    ShowPath({});
    if (!on && m_closesAtEnd)
        close();
}

void frmEditAppList::ShowPath(const QString& path) { m_ui->lblSearchingFolder->Show(path); }

void frmEditAppList::ReadAppList()
{
    m_doors.readApps();
    if (BoolApps())
        m_ui->ComboAppList->ShowEntries(FillAppCombo());
}

void frmEditAppList::ReadPalmList()
{
    m_doors.readPalm();
    if (!BoolApps())
        m_ui->ComboAppList->ShowEntries(FillPalmCombo());
}

void frmEditAppList::ReadList()
{
    if (BoolApps())
        ReadAppList();
    else
        ReadPalmList();
}

/// Of the two options that a click changes the one that is on from now on.
void frmEditAppList::opt_Click(bool on)
{
    if (!on)
        return;
    ShowBoxes({});
    m_ui->txtFilter->clear();
    m_ui->ComboAppList->SelectNothing();
    ShowEnabled();
    ReadList();
    m_ui->ComboAppList->scrollToTop();
}

void frmEditAppList::optSys_Click(bool on)
{
    if (!on)
        return;
    if (BoolEditSys())
        list_Click();
    else
        ShowBoxes({});
    ShowEnabled();
}

void frmEditAppList::list_Click()
{
    const QString current = m_ui->ComboAppList->CurrentName();
    if (BoolApps() || !BoolEditSys() || current.isEmpty())
        return;
    ShowBoxes(PalmSysBoxesOf(ToLatin1(current)));
    SelectedItem = ToLatin1(current);
    ShowEnabled();
}

void frmEditAppList::ShowBoxes(const PalmSysBoxes& boxes)
{
    SelectedItem.clear();
    m_ui->txtPalmSysName->setText(FromLatin1(boxes.name));
    m_ui->txtPalmSysType->setText(FromLatin1(boxes.type));
    m_ui->txtPalmSysCreat->setText(FromLatin1(boxes.creator));
    ShowEnabled();
}

PalmSysBoxes frmEditAppList::Boxes() const
{
    return {
        .name = ToLatin1(m_ui->txtPalmSysName->text()),
        .type = ToLatin1(m_ui->txtPalmSysType->text()),
        .creator = ToLatin1(m_ui->txtPalmSysCreat->text()),
    };
}

void frmEditAppList::cmdAddPrcByFolder_Click()
{
    const QString folder =
        m_ask.ChooseFolder(this, { .title = "Select a Folder", .folder = m_lastFolder });
    if (!folder.isEmpty())
        m_lastFolder = folder;
    emit FolderChosen(folder);
}

void frmEditAppList::cmdAddSingle_Click()
{
    const QString path = m_ask.OpenFile(this,
        { .title = tr("Select PRC File"),
            .folder = m_lastFolder,
            .filters = { "Palm application (*.prc)" } });
    if (path.isEmpty())
        return;
    m_lastFolder = QFileInfo(path).path();
    AddFile(path);
}

void frmEditAppList::AddFile(const QString& path)
{
    if (AddSingle(path.toStdString(), m_show))
        ReadAppList();
}

void frmEditAppList::cmdDeleteApp_Click()
{
    // A list of its own: what is selected could change while a box stands.
    m_ui->Listbuff->clear();
    m_ui->Listbuff->addItems(m_ui->ComboAppList->SelectedNames());
    std::vector<std::string> names;
    for (int row = 0; row < m_ui->Listbuff->count(); ++row)
        names.push_back(ToLatin1(m_ui->Listbuff->item(row)->text()));
    if (BoolApps()) {
        DeleteApplications(names, m_show);
    } else {
        DeletePalmItems(names, m_show);
        ShowBoxes({});
    }
    ReadList();
}

void frmEditAppList::cmdPalmSysApply_Click()
{
    const PalmSysResult result =
        ApplyPalmSys({ .boxes = Boxes(), .edits = BoolEditSys(), .current = SelectedItem }, m_show);
    if (!result.wasApplied)
        return;
    ReadPalmList();
    if (!result.name.empty()) {
        CatalogList& list = *m_ui->ComboAppList;
        if (BoolEditSys())
            SelectedItem = result.name; // so that it can be changed once more
        if (auto* const entry = list.findItems(FromLatin1(result.name), Qt::MatchExactly).value(0))
            list.setCurrentItem(entry, QItemSelectionModel::ClearAndSelect);
    }
    if (result.afterwards)
        m_show(*result.afterwards);
}

void frmEditAppList::cmdSearchIcon_Click()
{
    SearchIcon(ToLatin1(m_ui->txtIconSearch->text()), m_show);
}

void frmEditAppList::done(int result)
{
    if (m_isSearching) {
        m_closesAtEnd = true;
        emit StopAsked();
        return;
    }
    QDialog::done(result);
}

void frmEditAppList::keyPressEvent(QKeyEvent* event)
{
    if (HeldKeys::OfProgram().IsHeldEnd(*event))
        return;
    if (m_isSearching && event->key() == Qt::Key_Escape)
        emit StopAsked();
    else
        QDialog::keyPressEvent(event);
}

/// On purpose: Enter and Delete do nothing in the list.
bool frmEditAppList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto& press = static_cast<const QKeyEvent&>(*event);
    if (watched == m_ui->ComboAppList)
        return IsEnter(press) || press.key() == Qt::Key_Delete;
    if (watched == m_ui->txtFilter && press.key() == Qt::Key_Down) {
        m_ui->ComboAppList->TakeKeys();
        return true;
    }
    if (!IsEnter(press) || watched == m_ui->txtFilter)
        return false;
    if (!HeldKeys::OfProgram().IsHeldEnd(press))
        (watched == m_ui->txtIconSearch ? m_ui->cmdSearchIcon : m_ui->cmdPalmSysApply)->click();
    return true;
}

} // namespace vypx
