#include "forms/help/HelpPage.h"

#include "forms/help/HelpTopics.h"

#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>
#include <algorithm>

namespace vypx {

namespace {

constexpr int PictureWidth = 640; // pixels at most
constexpr int Beside = 40;        // pixels of margins

} // namespace

HelpPage::HelpPage(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenExternalLinks(true);
    // Or the room for pictures would change with their height.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void HelpPage::Open(const QString& page)
{
    QUrl url(QString("qrc") + HelpFolder + WithoutAnchor(page));
    if (page.contains('#'))
        url.setFragment(page.section('#', 1));
    setSource(url);
}

void HelpPage::doSetSource(const QUrl& url, QTextDocument::ResourceType type)
{
    setExtraSelections({});
    QTextBrowser::doSetSource(url, type);
    FitPictures();
    if (url.hasFragment())
        scrollToAnchor(url.fragment());
}

void HelpPage::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    FitPictures();
}

void HelpPage::FitPictures()
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (!fragment.charFormat().isImageFormat())
                continue;
            QTextCursor place(document());
            place.setPosition(fragment.position());
            place.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            FitPicture(place, fragment.charFormat().toImageFormat());
            break; // the block's parts have changed; no block has two pictures
        }
}

/// No wider than there is room. The picture is scaled here, since the painter does it roughly.
void HelpPage::FitPicture(const QTextCursor& place, const QTextImageFormat& format)
{
    const int width = std::clamp(viewport()->width() - Beside, 1, PictureWidth);
    const QUrl url = source().resolved(QUrl(format.name()));
    const QImage picture(HelpFolder + url.fileName());
    if (picture.isNull())
        return;
    const QImage scaled =
        picture.scaledToWidth(qRound(width * devicePixelRatioF()), Qt::SmoothTransformation);
    document()->addResource(QTextDocument::ImageResource, QUrl(format.name()), scaled);
    QTextImageFormat fitted = format;
    fitted.setWidth(width);
    fitted.setHeight(width * picture.height() / picture.width());
    QTextCursor(place).setCharFormat(fitted);
}

void HelpPage::Mark(const QStringList& words)
{
    QList<ExtraSelection> marks;
    for (const QString& word : words) {
        const QRegularExpression begins("\\b" + QRegularExpression::escape(word),
            QRegularExpression::CaseInsensitiveOption
                | QRegularExpression::UseUnicodePropertiesOption);
        for (QTextCursor at = document()->find(begins); !at.isNull();
             at = document()->find(begins, at)) {
            QTextCharFormat look;
            look.setBackground(QColor(255, 226, 110));
            look.setForeground(Qt::black);
            marks.append({ .cursor = at, .format = look });
        }
    }
    setExtraSelections(marks);
    const auto first = std::min_element(marks.begin(), marks.end(),
        [](const auto& one, const auto& other) { return one.cursor < other.cursor; });
    if (first == marks.end())
        return;
    QTextCursor place = first->cursor;
    place.setPosition(place.selectionStart());
    setTextCursor(place);
}

} // namespace vypx
