#include "forms/common/Ask.h"

#include "forms/common/CutLabel.h"
#include "forms/common/HeldKeys.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>

namespace vypx {

namespace {

/// Keeps an Enter or Escape that is still held from what came before from answering a box that
/// nobody has read.
class PassOverHeld : public QObject {
public:
    explicit PassOverHeld(QMessageBox& box)
    {
        box.installEventFilter(this);
        for (QAbstractButton* button : box.buttons())
            button->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::KeyPress
            && HeldKeys::OfProgram().IsHeldEnd(static_cast<const QKeyEvent&>(*event));
    }
};

} // namespace

QMessageBox::StandardButton ScreenAsk::Show(QWidget* parent, const Box& box)
{
    QMessageBox shown(box.icon, box.title, QString(), box.buttons, parent);
    shown.setEnabled(true); // though what it belongs to may not be
    shown.setTextFormat(Qt::PlainText);
    shown.setText(box.text);
    PassOverHeld passOver(shown);
    return static_cast<QMessageBox::StandardButton>(shown.exec());
}

namespace {

std::optional<QString> Chosen(
    QFileDialog& dialog, const QString& folder, const QStringList& filters)
{
    if (!filters.isEmpty())
        dialog.setNameFilters(filters);
    dialog.setDirectory(folder.isEmpty() || !QDir(folder).exists() ? QDir::currentPath() : folder);
    dialog.setEnabled(true); // though what it belongs to may not be
    const bool accepted = dialog.exec() == QDialog::Accepted;
    // After a question of its own some window managers leave no window active.
    if (QWidget* const parent = dialog.parentWidget())
        parent->window()->activateWindow();
    if (!accepted)
        return std::nullopt;
    return dialog.selectedFiles().value(0);
}

/// Qt puts the ending behind a name that has none; this one, where it is asked to, behind every
/// name that has another.
class SaveDialog : public QFileDialog {
public:
    SaveDialog(QWidget* parent, const SaveQuestion& question)
        : QFileDialog(parent, question.title)
        , m_ending("." + question.defaultEnding)
        , m_adds(question.addsEnding)
    {
        setFileMode(QFileDialog::AnyFile);
        setAcceptMode(QFileDialog::AcceptSave);
        setDefaultSuffix(question.defaultEnding);
        // Dialogs of some desktops ask about the name without the ending that it is then given.
        setOption(QFileDialog::DontUseNativeDialog);
    }

    QLineEdit* NameEdit() const { return findChild<QLineEdit*>("fileNameEdit"); }

    /// What Qt will not put behind the name by itself.
    QString LackingEnding() const
    {
        const QString file = selectedFiles().value(0);
        const bool lacks =
            m_adds && !QFileInfo(file).isDir() && !file.endsWith(m_ending, Qt::CaseInsensitive);
        return lacks ? m_ending : QString();
    }

    /// With the name that will be written, so that the question about an existing file is about it.
    void accept() override
    {
        const QString ending = LackingEnding();
        QLineEdit* const edit = NameEdit();
        if (edit && !edit->text().isEmpty() && !ending.isEmpty()) {
            // Quotes part several names; what stands beside them is none.
            const QString name =
                edit->text().contains('"') ? selectedFiles().value(0) : edit->text();
            // A file that is selected in the list, as a typed name that is there selects it, counts
            // before the name.
            if (const auto* const list = findChild<QAbstractItemView*>("listView"))
                list->selectionModel()->clearSelection();
            edit->setText(name + ending);
        }
        QFileDialog::accept();
    }

private:
    QString m_ending;
    bool m_adds;
};

/// Below the fields of a dialog that saves: the name of the file that will be written, with the
/// ending that a name without one gets.
void ShowNameToBeWritten(SaveDialog& dialog)
{
    auto* const layout = qobject_cast<QGridLayout*>(dialog.layout());
    const auto* const edit = dialog.NameEdit();
    if (!layout || !edit)
        return;
    auto* const note = new CutLabel(&dialog);
    note->setObjectName("lblNameToBeWritten");
    layout->addWidget(note, layout->rowCount(), 0, 1, -1);
    QObject::connect(edit, &QLineEdit::textChanged, note, [&dialog, note](const QString& typed) {
        const QFileInfo file(dialog.selectedFiles().value(0));
        const bool isName = !typed.isEmpty() && !file.isDir();
        note->Show(isName
                ? QObject::tr("Will be written as %1").arg(file.fileName() + dialog.LackingEnding())
                : QString());
    });
}

} // namespace

QString ScreenAsk::OpenFile(QWidget* parent, const OpenQuestion& question)
{
    QFileDialog dialog(parent, question.title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOption(QFileDialog::ReadOnly); // it chooses a file; it renames and deletes none
    return Chosen(dialog, question.folder, question.filters).value_or(QString());
}

std::optional<QString> ScreenAsk::SaveFile(QWidget* parent, const SaveQuestion& question)
{
    SaveDialog dialog(parent, question);
    ShowNameToBeWritten(dialog);
    return Chosen(dialog, question.folder, question.filters);
}

QString ScreenAsk::ChooseFolder(QWidget* parent, const FolderQuestion& question)
{
    QFileDialog dialog(parent, question.title);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setOption(QFileDialog::ReadOnly);
    return Chosen(dialog, question.folder, {}).value_or(QString());
}

void ScreenAsk::Beep() { QApplication::beep(); }

} // namespace vypx
