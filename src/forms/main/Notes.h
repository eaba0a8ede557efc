#pragma once

#include <QLabel>
#include <QString>
#include <map>

namespace vypx {

/// The main form's place for notes, which interrupt nobody. What failed to be written has a line of
/// its own: a save until one succeeds. All others share a second one, below each other.
class Notes {
public:
    /// What a note is about; a new one takes the place of the one before of its kind.
    enum class Kind {
        Load,     ///< goes with its document
        Save,     ///< of one that succeeded; goes with its document
        Template, ///< of one that was written; goes with its document
        Picture,  ///< of the last command for a picture; goes with its document
        Rows,     ///< of new icons and new owners; goes with its document
        Install,  ///< of an iconset that was queued; goes with its document and the next save
        Name,     ///< characters that a name can't hold; goes with its document
        Catalog,  ///< goes with the next reading of the catalogs
    };

    Notes(QLabel& notSaved, QLabel& others);

    void SaveFailed(const QString& why);
    void SaveSucceeded();
    /// The same of a template; the note goes with the document.
    void ExportFailed(const QString& why);
    void ExportSucceeded();
    /// The last save failed, and was of the document that is still open.
    bool IsDocumentNotSaved() const { return m_isDocumentNotSaved; }

    /// An empty text takes the kind's note away.
    void Tell(Kind kind, const QString& text);
    /// The document has ended, or another one has begun.
    void DocumentEnded();

private:
    void Show();
    void ShowFailures();

    QLabel& m_notSaved;
    QLabel& m_others;
    std::map<Kind, QString> m_texts;
    QString m_notSavedText, m_notExportedText;
    bool m_isDocumentNotSaved = false;
};

} // namespace vypx
