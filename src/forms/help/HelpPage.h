#pragma once

#include <QStringList>
#include <QTextBrowser>

namespace vypx {

/// Shows a page of the help, with its links and pictures. Links to the web go to the system's
/// browser.
class HelpPage : public QTextBrowser {
public:
    explicit HelpPage(QWidget* parent = nullptr);

    /// A file name, with or without an anchor.
    void Open(const QString& page);
    /// The one on show, without an anchor.
    QString Page() const { return source().fileName(); }

    /// Marks the places where words of the page begin with these, until another page is opened,
    /// and has the first one in view.
    void Mark(const QStringList& words);

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitPictures();
    void FitPicture(const QTextCursor& place, const QTextImageFormat& format);
};

} // namespace vypx
