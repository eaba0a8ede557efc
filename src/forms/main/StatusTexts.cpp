#include "forms/main/StatusTexts.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/common/Text.h"

#include <QStatusBar>

namespace vypx {

namespace {

/// A panel cuts long texts instead of widening the window.
QLabel* MakePanel(QStatusBar& bar, const QString& name)
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

/// A window's title takes "[*]" for a mark of its own.
QString TitleText(QString name) { return name.replace("[*]", "[*][*]"); }

} // namespace

StatusTexts::StatusTexts(QStatusBar& bar, QWidget& frame)
    : m_frame(frame)
    , m_panels{ MakePanel(bar, "StatusBar1_Panel1"), MakePanel(bar, "StatusBar1_Panel2") }
{
}

void StatusTexts::ShowFileName(const std::string& path)
{
    Show(1, "Windows Filename = " + PathText(LastComponent(path)));
}

void StatusTexts::ClearFileName() { Show(1, QString()); }

void StatusTexts::ShowDatabaseName(const std::string& name)
{
    Show(2, "Palm Database Name = " + FromLatin1(name));
}

void StatusTexts::Clear()
{
    Show(1, QString());
    Show(2, QString());
}

void StatusTexts::ShowTitle()
{
    QString title = "VY Pixelworks";
    if (FileLoaded) {
        QString name = PathText(LastComponent(FileName));
        if (name.isEmpty())
            name = FromLatin1(DatabaseName);
        if (name.isEmpty())
            name = QObject::tr("Untitled");
        title = TitleText(name) + (IconsetChanged ? "* - " : " - ") + title;
    }
    m_frame.setWindowTitle(title);
}

void StatusTexts::Show(int panel, const QString& text)
{
    QLabel* const label = m_panels[static_cast<std::size_t>(panel - 1)];
    label->setText(text);
    label->setToolTip(TipText(text));
}

} // namespace vypx
