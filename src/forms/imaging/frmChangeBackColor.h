#pragma once

#include "companion/Rgb.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmChangeBackColor;
}

namespace vypx {

/// Chooses the border colour of the crop window. Works directly on CropBackR, CropBackG and
/// CropBackB; unless OK is pressed they get back what they were.
class frmChangeBackColor : public QDialog {
    Q_OBJECT

public:
    explicit frmChangeBackColor(QWidget* parent);
    ~frmChangeBackColor() override;

signals:
    /// OK was pressed.
    void Chosen();

public slots:
    void accept() override;
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Take(const Rgb& colour);

    std::unique_ptr<Ui::frmChangeBackColor> m_ui;
    Rgb m_before; // SavR, SavG, SavB
};

} // namespace vypx
