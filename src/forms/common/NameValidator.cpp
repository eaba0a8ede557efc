#include "forms/common/NameValidator.h"

namespace vypx {

namespace {

bool CanStand(QChar character)
{
    constexpr ushort First = 32, Last = 126;
    return character.unicode() >= First && character.unicode() <= Last;
}

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
        } else if (!dropped.contains(text[i])) {
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
    return QObject::tr("The name on the handheld can't hold: %1").arg(characters.simplified());
}

} // namespace vypx
