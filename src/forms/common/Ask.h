#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <optional>

namespace vypx {

/// A message box. Texts are shown letter for letter, never as rich text.
struct Box {
    QString text;
    QString title = "VY Pixelworks";
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
};

/// A file dialog that opens.
struct OpenQuestion {
    QString title;
    QString folder;      ///< where it starts; empty or gone: where the program was started
    QStringList filters; ///< "Words (*.a *.b)", patterns apart by blanks
};

/// A file dialog that saves. It shows the name that will be written and asks before it accepts an
/// existing file.
struct SaveQuestion {
    QString title;
    QString folder;        ///< where it starts; empty or gone: where the program was started
    QStringList filters;   ///< as above
    QString defaultEnding; ///< without the dot; put behind a name that has none
    /// It is put behind every name that does not end in it, in whatever letter case.
    bool addsEnding = false;
};

/// A dialog that chooses a folder.
struct FolderQuestion {
    QString title;
    QString folder; ///< where it starts; empty or gone: where the program was started
};

/// The one door to boxes and file dialogs, so that tests can stand in for the user.
class Ask {
public:
    virtual ~Ask() = default;

    /// The button that was pressed.
    virtual QMessageBox::StandardButton Show(QWidget* parent, const Box& box) = 0;
    /// Path of the chosen file; empty when the dialog was cancelled.
    virtual QString OpenFile(QWidget* parent, const OpenQuestion& question) = 0;
    /// Path of the file to write; nothing when the dialog was cancelled.
    virtual std::optional<QString> SaveFile(QWidget* parent, const SaveQuestion& question) = 0;
    /// Path of the chosen folder; empty when the dialog was cancelled.
    virtual QString ChooseFolder(QWidget* parent, const FolderQuestion& question) = 0;
    /// The sound of something that is done.
    virtual void Beep() = 0;
};

/// Shows real boxes and dialogs.
class ScreenAsk : public Ask {
public:
    QMessageBox::StandardButton Show(QWidget* parent, const Box& box) override;
    QString OpenFile(QWidget* parent, const OpenQuestion& question) override;
    std::optional<QString> SaveFile(QWidget* parent, const SaveQuestion& question) override;
    QString ChooseFolder(QWidget* parent, const FolderQuestion& question) override;
    void Beep() override;
};

} // namespace vypx
