#include "forms/help/frmHelp.h"

#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "ui_frmHelp.h"

#include <QKeyEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QWindow>

namespace vypx {

namespace {

constexpr int PageRole = Qt::UserRole; // of an entry: the page that it opens
constexpr QSize Size(900, 640), FrameOfWindow(20, 60);

QTreeWidgetItem* EntryOf(QTreeWidgetItem& parent, const QString& page)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        QTreeWidgetItem& child = *parent.child(i);
        // The first page of a group stands within it once more.
        if (QTreeWidgetItem* const within = EntryOf(child, page))
            return within;
        if (WithoutAnchor(child.data(0, PageRole).toString()) == page)
            return &child;
    }
    return nullptr;
}

} // namespace

frmHelp::frmHelp(const HelpTopics& topics)
    : m_ui(std::make_unique<Ui::frmHelp>())
    , m_topics(topics)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_QuitOnClose, false);
    PaintChrome(*this);
    resize(Size.boundedTo(screen()->availableSize() - FrameOfWindow));
    m_ui->splitter->setSizes({ 250, 650 });
    m_ui->splitter->setStretchFactor(1, 1);
    Fill(*m_ui->treeContents->invisibleRootItem(), topics.Contents());
    ListWords();
    Connect();
}

frmHelp::~frmHelp() = default;

void frmHelp::Connect()
{
    HelpPage& page = *m_ui->txtPage;
    connect(m_ui->cmdBack, &QPushButton::clicked, &page, &QTextBrowser::backward);
    connect(m_ui->cmdForward, &QPushButton::clicked, &page, &QTextBrowser::forward);
    connect(&page, &QTextBrowser::backwardAvailable, m_ui->cmdBack, &QWidget::setEnabled);
    connect(&page, &QTextBrowser::forwardAvailable, m_ui->cmdForward, &QWidget::setEnabled);
    connect(m_ui->cmdHome, &QPushButton::clicked, this,
        [this] { Open(m_topics.Contents().value(0).page); });
    connect(m_ui->cmdPrint, &QPushButton::clicked, this, &frmHelp::cmdPrint_Click);
    connect(&page, &QTextBrowser::sourceChanged, this,
        [this](const QUrl& url) { ShowInContents(url.fileName()); });
    connect(m_ui->treeContents, &QTreeWidget::currentItemChanged, this,
        [this](const QTreeWidgetItem* entry) {
            if (entry)
                m_ui->txtPage->Open(entry->data(0, PageRole).toString());
        });
    connect(m_ui->txtIndex, &QLineEdit::textChanged, this, &frmHelp::ListWords);
    connect(m_ui->txtSearch, &QLineEdit::textChanged, this, &frmHelp::ListFound);
    ConnectList(*m_ui->txtIndex, *m_ui->listIndex);
    ConnectList(*m_ui->txtSearch, *m_ui->listSearch);
    const auto key = [this](const QKeySequence& keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    key(Qt::ALT | Qt::Key_Left, [this] { m_ui->cmdBack->click(); });
    key(Qt::ALT | Qt::Key_Right, [this] { m_ui->cmdForward->click(); });
    key(QKeySequence::Find, [this] { BeginSearch(); });
    key(QKeySequence::Print, [this] { m_ui->cmdPrint->click(); });
}

/// Enter in the edit opens what is selected in the list, or else its first entry.
void frmHelp::ConnectList(QLineEdit& edit, QListWidget& list)
{
    edit.installEventFilter(this);
    connect(&edit, &QLineEdit::returnPressed, this, [this, &list] {
        if (!list.currentItem())
            list.setCurrentRow(0);
        OpenOf(list);
    });
    connect(&list, &QListWidget::itemActivated, this, [this, &list] { OpenOf(list); });
    connect(&list, &QListWidget::itemClicked, this, [this, &list] { OpenOf(list); });
}

void frmHelp::Fill(QTreeWidgetItem& parent, const QList<HelpEntry>& entries)
{
    for (const HelpEntry& entry : entries) {
        auto* const item = new QTreeWidgetItem(&parent, { entry.title });
        item->setData(0, PageRole, entry.page);
        Fill(*item, entry.children);
    }
}

void frmHelp::ListWords()
{
    QListWidget& list = *m_ui->listIndex;
    list.clear();
    for (const HelpWord& word : m_topics.Words()) {
        if (!word.word.contains(m_ui->txtIndex->text(), Qt::CaseInsensitive))
            continue;
        auto* const item = new QListWidgetItem(word.word, &list);
        item->setData(PageRole, word.page);
    }
}

void frmHelp::ListFound()
{
    if (!m_search)
        m_search.emplace(m_topics.Pages());
    const QString words = m_ui->txtSearch->text();
    QListWidget& list = *m_ui->listSearch;
    list.clear();
    for (const HelpHit& hit : m_search->Find(words)) {
        auto* const item = new QListWidgetItem(hit.title, &list);
        item->setData(PageRole, hit.page);
    }
    m_ui->lblNothing->setVisible(list.count() == 0 && !HelpSearch::WordsOf(words).isEmpty());
}

void frmHelp::OpenOf(QListWidget& list)
{
    if (!list.currentItem())
        return;
    Open(list.currentItem()->data(PageRole).toString());
    if (&list == m_ui->listSearch)
        m_ui->txtPage->Mark(HelpSearch::WordsOf(m_ui->txtSearch->text()));
}

void frmHelp::Open(const QString& page) { m_ui->txtPage->Open(page); }

void frmHelp::ShowInContents(const QString& page)
{
    QTreeWidget& tree = *m_ui->treeContents;
    const QTreeWidgetItem* const current = tree.currentItem();
    if (current && WithoutAnchor(current->data(0, PageRole).toString()) == page)
        return;
    const QSignalBlocker quiet(tree);
    QTreeWidgetItem* const entry = EntryOf(*tree.invisibleRootItem(), page);
    tree.setCurrentItem(entry);
    if (entry)
        tree.scrollToItem(entry); // opens the group that it stands in
}

bool frmHelp::IsOwn(const QWidget& window) const
{
    const QWidget* widget = &window;
    while (widget && widget != this)
        widget = widget->parentWidget();
    return widget == this;
}

void frmHelp::BringUp(QWidget* modal)
{
    if (modal && IsOwn(*modal))
        return; // its printer's dialog or one of that: it lies above the help already
    winId();    // makes the window that is asked for next
    QWindow* const above = modal ? modal->window()->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != above) {
        hide(); // whether a box blocks a window is settled when that is shown
        windowHandle()->setTransientParent(above);
        if (above)
            connect(above, &QWindow::visibleChanged, this, [this, above](bool on) {
                if (!on && windowHandle() && windowHandle()->transientParent() == above)
                    windowHandle()->setTransientParent(nullptr);
            });
    }
    if (isMinimized())
        showNormal();
    show();
    raise();
    activateWindow();
    m_ui->txtPage->setFocus();
}

void frmHelp::BeginSearch()
{
    m_ui->tabs->setCurrentWidget(m_ui->tabSearch);
    m_ui->txtSearch->setFocus();
    m_ui->txtSearch->selectAll();
}

void frmHelp::cmdPrint_Click()
{
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (dialog.exec() == QDialog::Accepted)
        m_ui->txtPage->print(&printer);
}

void frmHelp::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        QWidget::keyPressEvent(event);
    else if (!HeldKeys::OfProgram().IsHeldEnd(*event))
        close();
}

/// From an edit the arrow leads down into its list.
bool frmHelp::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Down)
        return QWidget::eventFilter(watched, event);
    QListWidget& list = watched == m_ui->txtIndex ? *m_ui->listIndex : *m_ui->listSearch;
    if (!list.currentItem())
        list.setCurrentRow(0);
    list.setFocus();
    return true;
}

} // namespace vypx
