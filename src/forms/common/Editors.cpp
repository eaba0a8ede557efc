#include "forms/common/Editors.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace vypx {

bool IsEditor(const QObject& object)
{
    if (const auto* const choice = qobject_cast<const QComboBox*>(&object))
        return choice->isEditable();
    return qobject_cast<const QLineEdit*>(&object) || qobject_cast<const QTextEdit*>(&object)
        || qobject_cast<const QPlainTextEdit*>(&object)
        || qobject_cast<const QAbstractSpinBox*>(&object);
}

} // namespace vypx
