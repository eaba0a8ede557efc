#include "forms/common/Editors.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace vypx {

bool IsEditor(const QObject& object)
{
    return qobject_cast<const QLineEdit*>(&object) || qobject_cast<const QTextEdit*>(&object)
        || qobject_cast<const QPlainTextEdit*>(&object)
        || qobject_cast<const QAbstractSpinBox*>(&object)
        || qobject_cast<const QComboBox*>(&object);
}

} // namespace vypx
