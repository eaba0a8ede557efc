#pragma once

#include <string>
#include <string_view>

namespace vypx {

/// Whoever watches a load: the main form, the command-line tool, a test. Calls come in the order
/// of the load's steps; a listener may let pending events run in any of them, but must not start
/// a second load. What it does not care for it leaves out.
class LoadListener {
public:
    virtual ~LoadListener() = default;

    /// A box with this text (Latin-1) and an OK button; returns when it was answered.
    virtual void Message(std::string_view text) = 0;

    /// The message that follows warns of a label that is taken; `resource` is the one that wants
    /// it.
    virtual void DuplicateResource(const std::string& /*resource*/) { }

    /// The file was chosen: close the application list editor, empty the size and colour texts,
    /// show the panels by HighResOnly and LowResOnly.
    virtual void BeginLoad() { }
    /// LastDirIconsetLoad has a new value: time to write the settings.
    virtual void FolderRemembered() { }
    /// The old document is gone: hide the tree, show the busy note.
    virtual void TreeCleared() { }
    /// FileName and DatabaseName are those of the new document.
    virtual void DocumentNamed() { }
    /// Both panels go blank once more before the walk.
    virtual void ClearPictures() { }
    /// The walk has given up: no busy note, no file name in the status bar.
    virtual void WalkGivenUp() { }
    /// The busy note reads `text`, or goes.
    virtual void Busy(std::string_view) { }
    virtual void BusyEnded() { }
    /// The progress bar: its maximum; shown at 0; one more step done, counted from 1; hidden.
    virtual void ProgressMaximum(int) { }
    virtual void ProgressShown() { }
    virtual void Progress(int) { }
    virtual void ProgressHidden() { }
    /// The document is open: show the tree, enable what an open document allows.
    virtual void Opened() { }
    /// The icons were counted anew.
    virtual void StatsChanged() { }
};

} // namespace vypx
