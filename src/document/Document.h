#pragma once

#include "companion/ByteView.h"
#include "companion/IconRow.h"
#include "companion/Rgb.h"
#include "document/IconTree.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The one open document: tables and fields of the process, read and written directly by every
/// room. A load replaces it, a close empties it.
///
///   no document   FileLoaded false, tree empty, IconsetChanged false
///   loading       the tree is cleared and the tables are being filled; FileLoaded false
///   open          FileLoaded true, IconTable compacted, every image cell a file name or "NEW"
///   changed       also IconsetChanged true
namespace vypx {

/// Whether the document differs from what was last read or saved. Set like a boolean; it counts how
/// often a change was said, so that somebody who asked about the changes learns of later ones.
class ChangeMark {
public:
    ChangeMark& operator=(bool changed)
    {
        m_changed = changed;
        m_times += changed ? 1 : 0;
        return *this;
    }
    operator bool() const { return m_changed; }
    unsigned Times() const { return m_times; }

private:
    bool m_changed = false;
    unsigned m_times = 0;
};

/// One row of `BitmapTable`: a decoded bitmap. A transparent colour belongs to a file, not to an
/// icon. Cells are empty as long as nobody wrote them.
struct BitmapEntry {
    std::string file; ///< bare name of the working BMP; emptied when the image is dropped at load
    std::optional<int> hasTransparent; ///< 1 or 0
    std::optional<int> index; ///< palette index of the transparent colour, bitmaps of 1 to 8 bits
    std::optional<int> red, green, blue; ///< the transparent colour, 0 to 255
    int depth = 0; ///< bits per pixel of the record as read; 0: not from a file

    friend bool operator==(const BitmapEntry&, const BitmapEntry&) = default;
};

/// One row of `Itbl`: which bitmap resources are an application's large and small icon.
struct ItblRow {
    std::string type, creator;    ///< four characters each, any byte values
    int largeId = 0, smallId = 0; ///< resource IDs, 0 to 65535; 0: none

    friend bool operator==(const ItblRow&, const ItblRow&) = default;
};

inline std::vector<IconRow> IconTable(1);
inline std::vector<BitmapEntry> BitmapTable(1);
inline int BitmapRow = 0; ///< rows of BitmapTable that were filled
/// Row 0 stays empty, records count from row 1. No rows at all: never read.
inline std::vector<ItblRow> Itbl;
/// The whole iconset file. Index 1 is its first byte, so offset n is index n + 1; one zero byte
/// stands behind the last.
inline Bytes FileCashe;
inline std::int32_t IconFileSize = 0; ///< the file's length plus 1, FileCashe's last index
inline IconTree Tree;                 ///< what TreeView1 shows

inline std::string Parent;       ///< database name as read: key and text of the tree's root
inline std::string DatabaseName; ///< database name of the document, 31 characters at most
inline std::string FileName;     ///< path of the open iconset; empty for a new one not yet saved
inline bool FileLoaded = false;
inline ChangeMark IconsetChanged;
/// The open document is what a template brought, and no save has made an iconset of its file since.
inline bool LoadedAsTemplate = false;
inline bool TemplateMode = false;      ///< the next load reads a template
inline bool SkipOpenDialog = false;    ///< FileName is set already; lives for one load
inline bool DuplicateResource = false; ///< the next load reads no pictures; nothing sets it
inline bool DroppedFile = false;       ///< DroppedFileName replaces the file dialog
inline std::string DroppedFileName;
/// Whether cmdImportLG and cmdImportSM could be used when the file was dropped.
inline bool DropLGEnabled = false, DropSMEnabled = false;

/// The window for new labels is open, or about to be, for the selected icon: to give it another
/// label (Assign and Change), else to add icons.
inline bool AddIconAssignMode = false;
/// Set while that window is brought into its mode: the icon has an owner already (Change).
inline bool AddIconChangeMode = false;

/// What the main form shows and remembers of the selected icon.
inline std::string SelectedNode;            ///< IconLabel of the selected row
inline std::string LastClickedText;         ///< of the tree node that was clicked last
inline std::string HighResPath, LowResPath; ///< file on show in each slot, empty if none
inline bool LGloaded = false, SMloaded = false;
inline bool LGhasTransparent = false, SMhasTransparent = false;
inline int MaskR_LG = 0, MaskG_LG = 0, MaskB_LG = 0;
inline int MaskR_SM = 0, MaskG_SM = 0, MaskB_SM = 0;
inline bool TransparentUse = true;
inline int R = 0, G = 0, B = 255; ///< the panels' background
/// Labels that share images with the selection, from entry 1; the first empty one ends them.
inline std::vector<std::string> ShareNames;

/// Puts everything of this room that belongs to a document or its window back to what it is when
/// the process starts: all above, the counters, SettingsSaved. Catalogs and folders stay.
void ResetDocument();

/// There is no document: tables and texts of it are empty, the tree as well. What belongs to the
/// window and the next load stays, IconsetChanged too.
void ForgetDocument();

/// No picture is on show and none can be brought back, as when a document begins or ends.
void ClearSlots();

/// Index of the first row with that label. An empty label is no row's.
std::optional<std::size_t> FindIconRow(std::string_view label);

/// Puts a row behind the last filled one of BitmapTable; one empty row stands behind it.
void AddBitmapRow(BitmapEntry bitmap);

/// Drops the rows without a label; the others keep their order. With `keepOne` a table that would
/// be empty keeps one empty row.
void CompactIconTable(bool keepOne = false);

} // namespace vypx
