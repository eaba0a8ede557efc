#pragma once

#include "companion/BmpFile.h"
#include "document/Document.h"
#include "imaging/PictureHost.h"
#include "support/Files.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace vypx::test {

/// Stands in for the windows where a picture changes: answers the file dialog, hands out pictures
/// and keeps what it was told.
class RecordingHost : public PictureHost {
public:
    std::string choice; ///< the file dialog gives this path; empty: it is cancelled
    std::map<std::string, MaskedPicture> prepared; ///< by path; any other file is read as a BMP
    bool takesDropped = true;                      ///< a dropped file can be a picture
    std::optional<LoadedPicture> clipboard;        ///< what a paste finds; empty: no picture
    std::function<void()> duringDialog = [] {};
    std::function<void()> duringPaste = [] {}; ///< while the clipboard is read
    std::function<void(const std::string& name)> duringLoad = [](const std::string&) {};

    /// The calls in order, but for Enable: "choose", "load in.bmp", "folder", "colour LG", ...
    std::vector<std::string> steps;
    std::vector<std::string> messages; ///< text, "|", title
    std::vector<std::string> notes;
    std::map<Command, bool> enabled;
    std::map<std::string_view, Rgb> colours; ///< on show, by the letters of the slot

    bool IsOn(Command command) const
    {
        const auto found = enabled.find(command);
        return found != enabled.end() && found->second;
    }
    /// The commands that were told to be on or off, in their order.
    std::set<Command> Told(bool on) const
    {
        std::set<Command> commands;
        for (const auto& [command, isOn] : enabled)
            if (isOn == on)
                commands.insert(command);
        return commands;
    }
    /// Nothing was told so far.
    void Forget() { *this = {}; }

    std::string ChoosePicture() override
    {
        steps.emplace_back("choose");
        duringDialog();
        return choice;
    }
    bool TakesDropped(const std::string&) const override { return takesDropped; }
    LoadedPicture Load(const std::string& path) override
    {
        const std::string name = LastComponent(path);
        steps.push_back("load " + name);
        duringLoad(name);
        if (const auto found = prepared.find(path); found != prepared.end())
            return { .picture = found->second };
        if (!NamedFileExists(path))
            return { .whyNot = "it is not there" };
        const std::optional<Picture> picture = DecodeBmp(ReadBytes(path));
        return picture ? LoadedPicture{ .picture = { .pixels = *picture } }
                       : LoadedPicture{ .whyNot = "it is no picture" };
    }
    std::function<LoadedPicture()> ClipboardPicture() override
    {
        steps.emplace_back("clipboard");
        duringPaste();
        if (!clipboard)
            return {};
        return [this] { return *clipboard; };
    }
    void Message(std::string_view text, std::string_view title) override
    {
        steps.emplace_back("message");
        messages.push_back(std::string(text) + "|" + std::string(title));
    }
    void Note(const std::string& text) override
    {
        steps.emplace_back("note");
        notes.push_back(text);
    }
    void FolderRemembered() override { steps.emplace_back("folder"); }
    void Enable(std::span<const Command> commands, bool on) override
    {
        for (const Command command : commands)
            enabled[command] = on;
    }
    void ShowColour(const Slot& slot, Rgb colour) override
    {
        Step("colour", slot);
        colours[slot.letters] = colour;
    }
    void ClearPanel(const Slot& slot) override
    {
        Step("clear", slot);
        colours.erase(slot.letters);
    }
    void Draw(const Slot& slot) override { Step("draw", slot); }
    void LowResFailed() override { steps.emplace_back("no low-res"); }
    void ShowCrop(const Slot& slot) override { Step("crop", slot); }
    void StatsChanged() override { steps.emplace_back("stats"); }

private:
    void Step(const std::string& what, const Slot& slot)
    {
        steps.push_back(what + " " + std::string(slot.letters));
    }
};

} // namespace vypx::test
