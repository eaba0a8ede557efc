#include "document/SettingsFile.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "settings/IniStore.h"
#include "settings/Inifile.h"
#include "settings/Settings.h"

#include <algorithm>
#include <string_view>
#include <variant>

namespace vypx {

namespace {

/// 16-bit; what lies beyond the bounds is cut to them.
struct Number {
    int* variable;
    int least = INT16_MIN, most = INT16_MAX;
    int* inUse = nullptr; ///< what is written, where that is another variable
};
/// Of a colour: the saved one is read, the one in use is written.
Number Component(int& saved, int& inUse) { return { &saved, 0, 255, &inUse }; }

/// Settings whose text stands for something else than itself.
enum class Word {
    Depth,
    Resolution, ///< HighResOnly and LowResOnly
};
using Variable = std::variant<bool*, Number, std::string*, Word>;

/// A key of the file, in the order in which it is read and written.
struct Key {
    const char* section;
    const char* key;
    const char* defaultText;
    Variable variable;
};

constexpr const char* HighOnly = "High Res Only";
constexpr const char* LowOnly = "Low Res Only";
constexpr const char* BothRes = "Both High and Low Res";
constexpr const char* DefaultVersion = "3.20";

const std::vector<Key>& Keys()
{
    static const std::vector<Key> keys{
        { "PreviewBackColor", "Remember", "False", &RememberPreviewColor },
        { "PreviewBackColor", "Red", "0", Component(Rsave, R) },
        { "PreviewBackColor", "Green", "0", Component(Gsave, G) },
        { "PreviewBackColor", "Blue", "255", Component(Bsave, B) },
        { "Low Res Icons", "AutoCreateLowRes", "True", &AutoCreateLowRes },
        { "Startup Search", "Search for apps at startup", "False", &StartupSearch },
        { "Default Color Depth", "User Color Depth", "16-Bit", Word::Depth },
        { "Default Color Depth", "Prompt on New or File Open", "True", &PromptColorDepth },
        { "Compile Option", "Use Packbits Compression", "False", &UsePackbits },
        { "Compile Option", "Version String", DefaultVersion, &VersionString },
        { "Splash Screen", "Show splash screen at startup", "True", &ShowSplash },
        { "Resolution", "Default Icon Res", BothRes, Word::Resolution },
        { "Action on file save", "Warn about overwrite", "True", &WarnOverwrite },
        { "Unknown Icons", "Keep Unknown icons when saving", "True", &KeepUnknown },
        { "Backup Files", "Create Backup Iconset File on Save", "True", &CreateBackup },
        { "Preview Option Window", "Visible", "True", &PreviewWinVisible },
        { "Preview Option Window", "X-Pos", "0", Number{ &PreviewWinX } },
        { "Preview Option Window", "Y-Pos", "100", Number{ &PreviewWinY } },
        { "IconStatWindow", "Visible", "True", &StatWinVisible },
        { "IconStatWindow", "X-Pos", "0", Number{ &StatWinX } },
        { "IconStatWindow", "Y-Pos", "100", Number{ &StatWinY } },
        { "Shared Icons Window", "Visible", "True", &ShareWinVisible },
        { "Shared Icons Window", "X-Pos", "0", Number{ &ShareWinX } },
        { "Shared Icons Window", "Y-Pos", "100", Number{ &ShareWinY } },
        { "Main Window Size", "Width", "14000", Number{ &MainWinWidth } },
        { "Main Window Size", "Height", "9800", Number{ &MainWinHeight } },
        { "Program Directories", "Use Last Directories", "True", &UseLastDirs },
        { "Program Directories", "Last Directory for Iconset Load", "", &LastDirIconsetLoad },
        { "Program Directories", "Last Directory for Iconset Save", "", &LastDirIconsetSave },
        { "Program Directories", "Last Directory for Image Load", "", &LastDirImageLoad },
        { "Program Directories", "Last Directory for Image Save", "", &LastDirImageSave },
        { "Hotsync Info", "Palm User ID", "", &PalmUserID },
        { "Hotsync Info", "Palm Desktop Folder", "", &PalmDesktopFolder },
        { "Hotsync Info", "Palm Sync Folder", "", &PalmSyncFolder },
    };
    return keys;
}

std::optional<int> Number16(std::string_view text)
{
    const int number = cInifile::CLngDefault(text, INT32_MIN);
    if (number < INT16_MIN || number > INT16_MAX)
        return std::nullopt;
    return number;
}

/// On purpose: any other word leaves the variable as it was, and only `Remember` takes it for
/// "False".
void SetBoolean(bool& variable, const std::string& text)
{
    if (text == "True" || text == "False" || &variable == &RememberPreviewColor)
        variable = text == "True";
}

void SetResolution(const std::string& text)
{
    HighResOnly = text == HighOnly;
    LowResOnly = text == LowOnly;
}

/// False when the text is no number of 16 bits.
bool SetVariable(const Key& key, const std::string& text)
{
    if (const auto* boolean = std::get_if<bool*>(&key.variable)) {
        SetBoolean(**boolean, text);
        return true;
    }
    if (const auto* words = std::get_if<std::string*>(&key.variable)) {
        **words = text;
        return true;
    }
    if (const auto* word = std::get_if<Word>(&key.variable)) {
        *word == Word::Depth ? SetDefaultColorDepth(text) : SetResolution(text);
        return true;
    }
    const auto& range = std::get<Number>(key.variable);
    const std::optional<int> number = Number16(text);
    *range.variable =
        std::clamp(number.value_or(*Number16(key.defaultText)), range.least, range.most);
    return number.has_value();
}

std::string ResolutionText()
{
    if (HighResOnly && LowResOnly)
        HighResOnly = false;
    return HighResOnly ? HighOnly : LowResOnly ? LowOnly : BothRes;
}

std::string NumberText(int number)
{
    return std::to_string(std::clamp<int>(number, INT16_MIN, INT16_MAX));
}

const char* BooleanText(bool value) { return value ? "True" : "False"; }

/// The text of a key; empty when it is not to be written.
std::optional<std::string> TextOf(const Key& key)
{
    if (const auto* word = std::get_if<Word>(&key.variable))
        return *word == Word::Depth ? DefaultColorDepthWord() : ResolutionText();
    if (const auto* boolean = std::get_if<bool*>(&key.variable))
        return BooleanText(**boolean);
    const auto* words = std::get_if<std::string*>(&key.variable);
    if (!words) {
        const auto& number = std::get<Number>(key.variable);
        return NumberText(number.inUse ? *number.inUse : *number.variable);
    }
    if (*words == &VersionString && VersionString.empty())
        return DefaultVersion;
    if (std::string_view(key.key).starts_with("Last Directory") && !UseLastDirs)
        return std::nullopt;
    return **words;
}

/// Takes a window's state over; false when its keys stay as they stand in the file.
bool TakeSideWindow(const std::optional<SideWindow>& window, bool& visible, int& left, int& top)
{
    if (!window)
        return false;
    visible = window->isLoaded;
    if (window->isLoaded) {
        left = window->left;
        top = window->top;
    }
    return true;
}

/// Sections of side windows that are not given.
std::vector<std::string_view> TakeWindows(const WindowsToSave& windows)
{
    std::vector<std::string_view> kept;
    if (!TakeSideWindow(windows.preview, PreviewWinVisible, PreviewWinX, PreviewWinY))
        kept.emplace_back("Preview Option Window");
    if (!TakeSideWindow(windows.stats, StatWinVisible, StatWinX, StatWinY))
        kept.emplace_back("IconStatWindow");
    if (!TakeSideWindow(windows.shares, ShareWinVisible, ShareWinX, ShareWinY))
        kept.emplace_back("Shared Icons Window");
    MainWinWidth = windows.mainWidth;
    MainWinHeight = windows.mainHeight;
    return kept;
}

/// Keys that a window which is not loaded leaves as they are: its place.
bool IsPlaceOfAClosedWindow(const Key& key, const WindowsToSave& windows)
{
    const std::string_view section = key.section;
    const auto& window = section == "Preview Option Window" ? windows.preview
        : section == "IconStatWindow"                       ? windows.stats
        : section == "Shared Icons Window"                  ? windows.shares
                                                            : std::nullopt;
    return window && !window->isLoaded && std::holds_alternative<Number>(key.variable);
}

/// Of the sections of windows: a place or the main window's size.
bool IsPlaceOfAWindow(const Key& key)
{
    const std::string_view section = key.section;
    return section.find("Window") != section.npos && std::holds_alternative<Number>(key.variable);
}

} // namespace

std::string SettingsFile(const std::string& folder) { return folder + BelowFolder("VYPX.ini"); }

bool InitializeIni()
{
    cInifile ini;
    ini.path(SettingsFile());
    ini.Section("Program");
    ini.key("Name");
    ini.Default("VY Pixelworks");
    ini.Value("VY Pixelworks");
    return ini.Success();
}

std::vector<std::string> ReadSettings()
{
    std::vector<std::string> bad;
    cInifile ini;
    ini.path(SettingsFile());
    for (const Key& key : Keys()) {
        ini.Section(key.section);
        ini.key(key.key);
        ini.Default(key.defaultText);
        if (!SetVariable(key, ini.Value()))
            bad.push_back(std::string(key.section) + ": " + key.key);
    }
    if (VersionString.empty())
        VersionString = DefaultVersion;
    return bad;
}

bool HasWindowPlaces()
{
    const std::shared_ptr<const IniText> file = ReadIni(SettingsFile());
    return std::any_of(Keys().begin(), Keys().end(),
        [&](const Key& key) { return IsPlaceOfAWindow(key) && file->Value(key.section, key.key); });
}

bool SaveIni(const WindowsToSave& windows)
{
    if (SettingsSaved)
        return true;
    const std::vector<std::string_view> kept = TakeWindows(windows);
    return EditIni(SettingsFile(), [&](IniText& file) {
        for (const Key& key : Keys()) {
            const bool isKept = std::find(kept.begin(), kept.end(), key.section) != kept.end();
            if (isKept || IsPlaceOfAClosedWindow(key, windows))
                continue;
            if (const std::optional<std::string> text = TextOf(key))
                file.SetValue(key.section, key.key, *text);
        }
        return true;
    });
}

} // namespace vypx
