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

QString ScreenAsk::OpenFile(QWidget* parent, const OpenQuestion& question)
{
    QFileDialog dialog(parent, question.title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOption(QFileDialog::ReadOnly); // it chooses a file; it renames and deletes none
    dialog.setNameFilters(question.filters);
    dialog.setDirectory(question.folder.isEmpty() ? QDir::currentPath() : question.folder);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().first();
}

} // namespace vypx
