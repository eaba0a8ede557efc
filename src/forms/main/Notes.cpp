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
    m_notSavedText = QObject::tr("The iconset was not saved. %1").arg(why);
    m_isDocumentNotSaved = true;
    ShowFailures();
}

void Notes::SaveSucceeded()
{
    m_notSavedText.clear();
    m_isDocumentNotSaved = false;
    ShowFailures();
}

void Notes::ExportFailed(const QString& why)
{
    m_notExportedText = QObject::tr("The template was not written. %1").arg(why);
    ShowFailures();
}

void Notes::ExportSucceeded()
{
    m_notExportedText.clear();
    ShowFailures();
}

void Notes::ShowFailures()
{
    QStringList lines{ m_notSavedText, m_notExportedText };
    lines.removeAll(QString());
    m_notSaved.setText(lines.join('\n'));
    m_notSaved.setVisible(!lines.isEmpty());
}

void Notes::Tell(Kind kind, const QString& text)
{
    m_texts[kind] = text;
    Show();
}

void Notes::DocumentEnded()
{
    for (const Kind kind : { Kind::Load, Kind::Save, Kind::Template, Kind::Picture, Kind::Rows,
             Kind::Install, Kind::Name })
        m_texts.erase(kind);
    m_isDocumentNotSaved = false; // the note stays, as its file is still not written
    m_notExportedText.clear();
    ShowFailures();
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
