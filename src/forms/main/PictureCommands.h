#pragma once

#include "forms/common/Ask.h"
#include "forms/main/BusyGuard.h"
#include "forms/main/IconCommands.h"
#include "forms/main/SavedSettings.h"
#include "forms/main/SettingsWindows.h"
#include "imaging/PictureHost.h"

#include <QPointer>
#include <functional>

namespace vypx {

class CropTask;
class frmCrop;

/// The commands that change pictures: import, paste, deletion, undo, low-res pictures, and the
/// removal of all pictures of a slot. It asks, loads and shows; what is done is decided downstairs.
class PictureCommands : public QObject, private PictureHost {
    Q_OBJECT

public:
    /// `working` is lblWorking.
    struct View {
        QWidget& form;
        IconTreeView& tree;
        Panels panels;
        Commands& commands;
        StatusTexts& status;
        Notes& notes;
        QLabel& working;
    };

    PictureCommands(const View& view, Ask& ask, BusyGuard& busy, IconCommands& icons,
        SavedSettings& settings, const SettingsWindows& windows, ViewEntries& views);

    void Import(const vypx::Slot& slot);
    void Paste(const vypx::Slot& slot);
    void Delete(const vypx::Slot& slot);
    void Undo(const vypx::Slot& slot);
    void CreateLowRes();
    void RemoveAll(const vypx::Slot& slot);

private:
    void Run(const std::function<void()>& work);
    void Guard(const std::function<void()>& work);
    void ImportCropped(const CropTask& task);
    void KeepFocus(QWidget* before);

    std::string ChoosePicture() override;
    bool TakesDropped(const std::string& path) const override;
    LoadedPicture Load(const std::string& path) override;
    std::function<LoadedPicture()> ClipboardPicture() override;
    ColorDepth Depth() const override;
    void Message(std::string_view text, std::string_view title) override;
    void Note(const std::string& text) override;
    void FolderRemembered() override;
    void Enable(std::span<const Command> commands, bool on) override;
    void ShowColour(const vypx::Slot& slot, Rgb colour) override;
    void ClearPanel(const vypx::Slot& slot) override;
    void Draw(const vypx::Slot& slot) override;
    void ShowCrop(const vypx::Slot& slot) override;
    void StatsChanged() override;

    View m_view;
    Ask& m_ask;
    BusyGuard& m_busy;
    IconCommands& m_icons;
    SavedSettings& m_settings;
    const SettingsWindows& m_windows;
    ViewEntries& m_views;
    QPointer<frmCrop> m_crop;
};

} // namespace vypx
