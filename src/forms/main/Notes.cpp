#include "forms/main/Notes.h"

#include <QStringList>

namespace vypx {

Notes::Notes(QLabel& notSaved, QLabel& others)
    : m_notSaved(notSaved)
    , m_others(others)
{
    QPalette warning = notSaved.palette();
    warning.setColor(QPalette::WindowText, QColor(176, 0, 0));
    notSaved.setPalette(warning);
}

void Notes::SaveFailed(const QString& why)
{
    m_notSaved.setText(QObject::tr("The iconset was not saved. %1").arg(why));
    m_notSaved.setVisible(true);
    m_isDocumentNotSaved = true;
}

void Notes::SaveSucceeded()
{
    m_notSaved.setVisible(false);
    m_isDocumentNotSaved = false;
}

void Notes::Tell(Kind kind, const QString& text)
{
    m_texts[kind] = text;
    Show();
}

void Notes::DocumentEnded()
{
    for (const Kind kind : { Kind::Load, Kind::Save, Kind::Picture, Kind::Rows, Kind::Name })
        m_texts.erase(kind);
    m_isDocumentNotSaved = false; // the note stays, as its file is still not written
    Show();
}

void Notes::Show()
{
    QStringList lines;
    for (const auto& [kind, text] : m_texts)
        if (!text.isEmpty())
            lines << text;
    m_others.setText(lines.join('\n'));
    m_others.setVisible(!lines.isEmpty());
}

} // namespace vypx
