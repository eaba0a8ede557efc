#include "forms/Ask.h"

#include <QDir>
#include <QFileDialog>

namespace vypx {

QMessageBox::StandardButton ScreenAsk::Show(QWidget* parent, const Box& box)
{
    QMessageBox shown(box.icon, box.title, QString(), box.buttons, parent);
    shown.setTextFormat(Qt::PlainText);
    shown.setText(box.text);
    return static_cast<QMessageBox::StandardButton>(shown.exec());
}

namespace {

std::optional<QString> Chosen(
    QFileDialog& dialog, const QString& folder, const QStringList& filters)
{
    dialog.setNameFilters(filters);
    dialog.setDirectory(folder.isEmpty() ? QDir::currentPath() : folder);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.selectedFiles().value(0);
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
    QFileDialog dialog(parent, question.title);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(question.defaultEnding);
    return Chosen(dialog, question.folder, question.filters);
}

} // namespace vypx
