#include "forms/Form1.h"

#include "document/Document.h"
#include "forms/Commands.h"
#include "forms/Text.h"
#include "ui_Form1.h"

#include <QAction>
#include <QApplication>

namespace vypx {

namespace {

/// A panel of the status bar; it cuts long texts instead of widening the window.
QLabel* MakeStatusPanel(QStatusBar& bar, const QString& name)
{
    auto* const panel = new QLabel(&bar);
    panel->setObjectName(name);
    panel->setTextFormat(Qt::PlainText);
    panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel->setMinimumWidth(40);
    panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar.addWidget(panel, 1);
    return panel;
}

} // namespace
} // namespace vypx

/// The pictures lie in a library, where nothing else would pull them in.
static void InitArt() { Q_INIT_RESOURCE(art); }

namespace vypx {

Form1::Form1(QWidget& frame, Ask& ask)
    : m_ui(std::make_unique<Ui::Form1>())
    , m_frame(frame)
    , m_ask(ask)
{
    InitArt();
    m_ui->setupUi(this);
    // The high-res panel has a row of commands more; the two stand level all the same.
    m_ui->commandsSMLayout->setRowMinimumHeight(
        3, m_ui->cmdCreateLowRes->sizeHint().height() + m_ui->commandsSMLayout->verticalSpacing());
    m_panelLG = PanelOf("LG");
    m_panelSM = PanelOf("SM");
    m_statusPanels = { MakeStatusPanel(*m_ui->StatusBar1, "StatusBar1_Panel1"),
        MakeStatusPanel(*m_ui->StatusBar1, "StatusBar1_Panel2") };
    for (const int image : { ImageVY, ImagePalm, ImageApp, ImageUnknown, ImageDelete })
        findChild<QLabel*>(QString("imgKey%1").arg(image))
            ->setPixmap(m_ui->TreeView1->Image(image).pixmap(16, 16));
    OfferRemoval(Removal::Remove);
    QPalette warning = m_ui->lblNotSaved->palette();
    warning.setColor(QPalette::WindowText, QColor(176, 0, 0));
    m_ui->lblNotSaved->setPalette(warning);
    ConnectCommands();
    qApp->installEventFilter(this);
}

Form1::~Form1() { qApp->removeEventFilter(this); }

void Form1::ConnectCommands()
{
    const auto connectEntry = [this](const char* name, void (Form1::*handler)()) {
        connect(m_frame.findChild<QAction*>(name), &QAction::triggered, this, handler);
    };
    connectEntry("mnuNew", &Form1::mnuNew_Click);
    connectEntry("mnuOpen", &Form1::mnuOpen_Click);
    connectEntry("mnuCloseIconset", &Form1::mnuCloseIconset_Click);
    connectEntry("mnuSave", &Form1::mnuSave_Click);
    connectEntry("mnuSaveAs", &Form1::mnuSaveAs_Click);
    connectEntry("mnuExit", &Form1::mnuExit_Click);
    connectEntry("mnuShowBoth", &Form1::mnuShowBoth_Click);
    connectEntry("mnuHideLowRes", &Form1::mnuHideLowRes_Click);
    connectEntry("mnuHideHighRes", &Form1::mnuHideHighRes_Click);
    connectEntry("mnuOptions", &Form1::mnuOptions_Click);
    connect(m_ui->cmdRemoveIcon, &QPushButton::clicked, this, &Form1::RemoveSelected);
    connect(m_ui->cmdClrDeleted, &QPushButton::clicked, this, &Form1::ClearDeletedIcons);
    connect(m_ui->cmdChangeDataBaseName, &QPushButton::clicked, this,
        &Form1::cmdChangeDataBaseName_Click);
    connect(m_ui->TreeView1, &IconTreeView::NodeClick, this,
        [this](const QTreeWidgetItem* node) { TreeView1_NodeClick(*node); });
    connect(m_ui->TreeView1, &IconTreeView::AfterLabelEdit, this, &Form1::TreeView1_AfterLabelEdit);
}

void Form1::Enable(std::string_view command, bool on) { EnableCommand(m_frame, command, on); }

void Form1::Enable(std::initializer_list<std::string_view> commands, bool on)
{
    for (const std::string_view command : commands)
        Enable(command, on);
}

void Form1::mnuExit_Click() { ExitProgram(); }

} // namespace vypx
