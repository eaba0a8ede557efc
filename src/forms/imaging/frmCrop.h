#pragma once

#include "forms/common/Ask.h"
#include "forms/common/DisabledWindow.h"
#include "imaging/CropTask.h"

#include <QDialog>
#include <QPointer>
#include <functional>
#include <memory>

namespace Ui {
class frmCrop;
}

namespace vypx {

class frmChangeBackColor;

/// "Resize Image": cuts a picture that is larger than its slot to the slot's size, or stretches it.
/// The window that it belongs to is disabled from its beginning until it closes, whatever way.
class frmCrop : public QDialog {
    Q_OBJECT

public:
    /// What the window can't do by itself.
    struct Doors {
        /// Runs long work while no input gets in, and tells what it throws.
        std::function<void(const std::function<void()>& work)> run;
        /// The scratch picture has the slot's size: it is to be imported. Called within `run`.
        std::function<void(const CropTask& task)> import;
    };

    frmCrop(const vypx::Slot& slot, ColorDepth depth, Ask& ask, Doors doors, QWidget& form);
    ~frmCrop() override;

    /// Builds the view and shows the window. Within `Doors::run`.
    void Open();

    void reject() override;
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Connect();
    std::string_view CropFrmLoad();
    void cmdOK_Click();
    void cmdChangeBackColor_Click();
    void optAspect_Click();
    void optStretch_Click(bool stretches);
    void StretchMode();
    void StretchPreview();
    void PicFit();
    bool RunAlone(const std::function<std::string_view()>& work);
    void Tell(std::string_view message);
    void ShowMode(bool stretches);
    void ShowView();
    void ShowSizes();
    void FitForm(FormSize told);
    QPoint ViewPlace() const;

    std::unique_ptr<Ui::frmCrop> m_ui;
    Ask& m_ask;
    Doors m_doors;
    CropTask m_task;
    std::unique_ptr<DisabledWindow> m_disabled;
    QPointer<frmChangeBackColor> m_borderWindow;
    bool m_isWorking = false;
};

} // namespace vypx
