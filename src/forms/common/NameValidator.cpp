#include "forms/common/NameValidator.h"

#include "companion/PalmDatabase.h"

namespace vypx {

namespace {

bool CanStand(QChar character) { return CanStandInName(character.unicode()); }

} // namespace

NameValidator::NameValidator(QObject* owner)
    : QValidator(owner)
{
}

QValidator::State NameValidator::validate(QString& text, int& cursor) const
{
    QString kept, dropped;
    int keptBeforeCursor = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (CanStand(text[i])) {
            kept += text[i];
            keptBeforeCursor += i < cursor;
        } else {
            dropped += text[i];
        }
    }
    if (dropped.isEmpty())
        return Acceptable;
    text = kept;
    cursor = keptBeforeCursor;
    emit Dropped(dropped);
    return Acceptable;
}

QString DroppedCharactersText(const QString& characters)
{
    QStringList words;
    for (const char32_t code : characters.toUcs4()) {
        if (code == U'\t')
            words << QObject::tr("a tab");
        else if (code == U'\n' || code == U'\r')
            words << QObject::tr("a line break");
        else
            words << QString::fromUcs4(&code, 1);
    }
    words.removeDuplicates();
    return QObject::tr("The name on the handheld can't hold: %1").arg(words.join(", "));
}

} // namespace vypx
