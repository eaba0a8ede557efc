#pragma once

#include "forms/common/HeldKeys.h"

#include <QElapsedTimer>
#include <QObject>
#include <functional>

class QKeyEvent;
class QWidget;

namespace vypx {

/// The keys of the main form. Plain R marks the selected icon: from anywhere in the form that
/// isn't written into, once however long it is held down, but not amid a search by typing in the
/// tree, which the letter belongs to then, and not while the form is disabled. A button's mnemonic
/// acts at once, on the icon that is selected when it is pressed.
class FormKeys : public QObject {
public:
    /// `remove` is the command of the key R.
    FormKeys(QWidget& form, QWidget& tree, std::function<void()> remove);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool TakesMnemonic(QObject& watched);
    bool TakesRemoveKey(QObject& watched, const QKeyEvent& press);
    bool IsInUsableForm(const QObject& object) const;

    QWidget& m_form;
    QWidget& m_tree;
    std::function<void()> m_remove;
    HeldKeys& m_held = HeldKeys::OfProgram();
    bool m_isRepeat = false;     // the press that is on its way
    QElapsedTimer m_sinceLetter; // the last one that the tree searched for
};

} // namespace vypx
