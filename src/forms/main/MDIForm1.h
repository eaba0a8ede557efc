#pragma once

#include <QMainWindow>
#include <memory>

class QMdiSubWindow;

namespace Ui {
class MDIForm1;
}

namespace vypx {

class Ask;
class Form1;

/// The outer frame: menus and the area in which Form1 and the side windows live. Its close button
/// leaves the program the way the Exit command does.
class MDIForm1 : public QMainWindow {
    Q_OBJECT

public:
    explicit MDIForm1(Ask& ask);
    ~MDIForm1() override;

    Form1& Form() { return *m_form; }

    /// Starts the program: works in `programFolder`, or in `userFolder` where that can't be
    /// written, and shows itself. Throws std::filesystem::filesystem_error when the working folder
    /// can't be made.
    void Start(const QString& programFolder, const QString& userFolder);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void FitForm();

    std::unique_ptr<Ui::MDIForm1> m_ui;
    Form1* m_form;          // within m_child
    QMdiSubWindow* m_child; // within the area
};

} // namespace vypx
