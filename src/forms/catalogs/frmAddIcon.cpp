#include "forms/catalogs/frmAddIcon.h"

#include "catalogs/AvailableIcons.h"
#include "document/Document.h"
#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "ui_frmAddIcon.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace vypx {

frmAddIcon::frmAddIcon(QWidget& form)
    : QDialog(&form)
    , m_ui(std::make_unique<Ui::frmAddIcon>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(DialogPlace());
    Connect();
}

frmAddIcon::~frmAddIcon() = default;

void frmAddIcon::Connect()
{
    for (const QRadioButton* option :
        { m_ui->optApp, m_ui->optPalm, m_ui->optVY, m_ui->optLargeIcon, m_ui->optSmallIcon })
        connect(option, &QRadioButton::toggled, this, &frmAddIcon::option_Click);
    connect(m_ui->chkCreateShared, &QCheckBox::toggled, this, &frmAddIcon::chkCreateShared_Click);
    connect(m_ui->cmdAddtoList, &QPushButton::clicked, this, &frmAddIcon::cmdAddtoList_Click);
    connect(m_ui->cmdRmvIcon, &QPushButton::clicked, this, &frmAddIcon::cmdRmvIcon_Click);
    connect(m_ui->cmdApplyNewIcon, &QPushButton::clicked, this, &frmAddIcon::cmdApplyNewIcon_Click);
    connect(m_ui->cmdCancelNewIcon, &QPushButton::clicked, this, &frmAddIcon::reject);

    CatalogList& list = *m_ui->ComboAppListIcon;
    connect(m_ui->txtFilter, &QLineEdit::textChanged, &list, &CatalogList::Narrow);
    connect(&list, &CatalogList::Filled, this, [this, &list] {
        m_ui->lblShown->setText(tr("%1 of %2 shown").arg(list.count()).arg(list.Total()));
    });
    // On purpose: in Add mode as well, though nothing may be waiting to be added.
    const auto chosen = [this, &list] {
        if (list.selectionModel()->hasSelection())
            m_ui->cmdApplyNewIcon->setEnabled(true);
    };
    connect(&list, &QListWidget::itemSelectionChanged, this, chosen);
    connect(&list, &QListWidget::itemClicked, this, chosen);
    connect(&list, &QListWidget::itemDoubleClicked, this,
        [this](const QListWidgetItem* entry) { EntryUsed(entry->text()); });
    connect(m_ui->ListAddedIcons, &QListWidget::itemDoubleClicked, this,
        [this](const QListWidgetItem* label) {
            m_ui->ListAddedIcons->Remove(*label);
            AddedChanged();
        });
    for (QObject* watched : std::initializer_list<QObject*>{ m_ui->txtFilter, &list,
             list.viewport(), m_ui->ListAddedIcons, m_ui->ListAddedIcons->viewport() })
        watched->installEventFilter(this);
}

void frmAddIcon::Load()
{
    const Mode mode = !AddIconAssignMode ? Mode::Add
        : AddIconChangeMode              ? Mode::Change
                                         : Mode::Assign;
    if (mode == m_mode && mode == Mode::Add)
        return;
    m_mode = Mode::Closed; // nothing is filled meanwhile
    m_ui->ListAddedIcons->Forget();
    m_ui->txtFilter->clear();
    for (QCheckBox* box : { m_ui->chkCreateShared, m_ui->chkBothSizes })
        box->setChecked(false);
    m_ui->optApp->setChecked(true);
    m_ui->optLargeIcon->setChecked(true);
    m_mode = mode;
    ShowMode();
    m_ui->ComboAppListIcon->SelectNothing();
    m_ui->cmdApplyNewIcon->setEnabled(false);
    m_ui->txtFilter->setFocus();
}

void frmAddIcon::ShowMode()
{
    const bool adds = m_mode == Mode::Add;
    setWindowTitle(adds ? "Add New Icon" : "Assign App to Orphaned Icon");
    m_ui->cmdApplyNewIcon->setText(adds ? "Add New Icon(s)" : "Assign App to Icon");
    for (QWidget* control : std::initializer_list<QWidget*>{ m_ui->ListAddedIcons,
             m_ui->cmdAddtoList, m_ui->cmdRmvIcon, m_ui->lblIconsToAdd, m_ui->chkBothSizes })
        control->setVisible(adds);
    m_ui->listsLayout->setColumnStretch(2, adds ? 1 : 0);
    m_ui->chkCreateShared->setVisible(m_mode == Mode::Change);
    m_ui->ComboAppListIcon->setSelectionMode(
        adds ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    adjustSize();
}

void frmAddIcon::ShowAvailable(const PixelSize& highRes)
{
    m_highRes = highRes;
    OfferSizes();
    if (FileLoaded)
        m_ui->ListAddedIcons->RemoveIf([](const std::string& label) {
            return FindIconRow(label).has_value(); // added by a run that stopped later
        });
    Fill();
}

void frmAddIcon::ForgetUnlisted()
{
    m_ui->ListAddedIcons->RemoveIf([](const std::string& label) { return !IsListed(label); });
    AddedChanged();
}

void frmAddIcon::ForgetAdded()
{
    m_ui->ListAddedIcons->Forget();
    AddedChanged();
}

/// A small icon can't hold a large picture.
void frmAddIcon::OfferSizes()
{
    const bool canBeSmall = m_mode != Mode::Change || CanBeSmall(m_highRes);
    m_ui->optSmallIcon->setEnabled(canBeSmall);
    const QSignalBlocker quiet(m_ui->optLargeIcon); // what is selected stays so
    if (!canBeSmall)
        m_ui->optLargeIcon->setChecked(true);
}

void frmAddIcon::Fill()
{
    const AssignRequest chosen = Request();
    m_ui->ComboAppListIcon->ShowEntries(FilterCombo(chosen.catalog, chosen.size,
        m_ui->ListAddedIcons->Labels(), { .assigns = m_mode != Mode::Add, .highRes = m_highRes }));
}

/// Of the two options that a click changes the one that is on from now on.
void frmAddIcon::option_Click(bool on)
{
    if (!on || m_mode == Mode::Closed)
        return;
    m_ui->ComboAppListIcon->SelectNothing();
    Fill();
}

/// The launcher's icons can't be shared.
void frmAddIcon::chkCreateShared_Click(bool on)
{
    m_ui->optVY->setEnabled(!on);
    if (on && m_ui->optVY->isChecked())
        m_ui->optPalm->setChecked(true);
}

void frmAddIcon::cmdAddtoList_Click() { AddToList(m_ui->ComboAppListIcon->SelectedNames()); }

void frmAddIcon::cmdRmvIcon_Click()
{
    m_ui->ListAddedIcons->RemoveSelected();
    AddedChanged();
}

void frmAddIcon::cmdApplyNewIcon_Click()
{
    if (m_ui->chkCreateShared->isChecked())
        emit ShareAsked(Request());
    else if (AddIconAssignMode)
        emit AssignAsked(Request());
    else
        emit AddAsked(m_ui->ListAddedIcons->Labels());
}

/// A double click. On purpose: outside of Add it assigns at once, a ticked box for sharing or not.
void frmAddIcon::EntryUsed(const QString& name)
{
    if (m_mode == Mode::Add)
        AddToList({ name });
    else
        AssignEntry(name);
}

/// The one that was clicked, though Ctrl may have taken its selection away.
void frmAddIcon::AssignEntry(const QString& name)
{
    AssignRequest request = Request();
    request.entry = ToLatin1(name);
    emit AssignAsked(request);
}

void frmAddIcon::AddToList(const QStringList& names)
{
    if (names.isEmpty())
        return;
    const AssignRequest chosen = Request();
    AddedList& added = *m_ui->ListAddedIcons;
    for (const QString& text : names) {
        const std::string name = ToLatin1(text);
        if (m_ui->chkBothSizes->isChecked())
            for (const std::string& label : LabelsInBothSizes(chosen.catalog, name, added.Labels()))
                added.Add(label);
        else
            added.Add(LabelOfEntry(chosen.catalog, chosen.size, name));
    }
    added.scrollToBottom();
    AddedChanged();
}

void frmAddIcon::AddedChanged()
{
    m_ui->cmdApplyNewIcon->setEnabled(m_ui->ListAddedIcons->count() > 0);
    Fill();
}

void frmAddIcon::done(int result)
{
    if (m_mode == Mode::Closed) // what has closed it once counts
        return;
    m_mode = Mode::Closed;
    AddIconAssignMode = false;
    QDialog::done(result);
}

void frmAddIcon::keyPressEvent(QKeyEvent* event)
{
    if (HeldKeys::OfProgram().IsHeldEnd(*event))
        return;
    if (IsEnter(*event) && event->modifiers() & Qt::ControlModifier)
        m_ui->cmdApplyNewIcon->click();
    else
        QDialog::keyPressEvent(event);
}

/// Keys of the lists and the filter. Enter never assigns: it would be too easy to press it in a
/// list that changes while its filter is typed.
bool frmAddIcon::TakesKey(const QObject& watched, const QKeyEvent& press)
{
    CatalogList& list = *m_ui->ComboAppListIcon;
    const bool isRepeat = HeldKeys::OfProgram().IsRepeat(press);
    if (IsEnter(press)) {
        const bool applies = press.modifiers() & Qt::ControlModifier;
        if (isRepeat || (m_mode != Mode::Add && !applies))
            return true;
        if (applies) {
            m_ui->cmdApplyNewIcon->click();
        } else if (&watched == &list) {
            QStringList names = list.SelectedNames();
            if (names.isEmpty() && list.currentItem())
                names << list.currentItem()->text();
            AddToList(names);
        } else if (&watched == m_ui->txtFilter && list.count() == 1) {
            AddToList({ list.item(0)->text() });
            m_ui->txtFilter->selectAll(); // for the next name
        }
        return true;
    }
    if (&watched == m_ui->ListAddedIcons && press.key() == Qt::Key_Delete) {
        if (!isRepeat)
            cmdRmvIcon_Click();
        return true;
    }
    if (&watched == m_ui->txtFilter && press.key() == Qt::Key_Down) {
        list.TakeKeys();
        return true;
    }
    return false;
}

bool frmAddIcon::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        return TakesKey(*watched, static_cast<const QKeyEvent&>(*event));
    // Lists take the double click of any button for one.
    if (event->type() == QEvent::MouseButtonDblClick && watched != m_ui->txtFilter)
        return static_cast<const QMouseEvent&>(*event).button() != Qt::LeftButton;
    return QDialog::eventFilter(watched, event);
}

AssignRequest frmAddIcon::Request() const
{
    AssignRequest request;
    request.catalog = m_ui->optApp->isChecked() ? Catalog::Apps
        : m_ui->optPalm->isChecked()            ? Catalog::Palm
                                                : Catalog::Launcher;
    request.size = m_ui->optLargeIcon->isChecked() ? SizeClass::Large : SizeClass::Small;
    request.entry = ToLatin1(m_ui->ComboAppListIcon->CurrentName());
    return request;
}

} // namespace vypx
