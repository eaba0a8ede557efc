#pragma once

#include "cli/Findings.h"
#include "cli/JudgedPictures.h"
#include "companion/ByteView.h"

/// What `validate` looks for in the open document.
namespace vypx {

/// The rows of the tree, as the window would show them.
void CheckIcons(Findings& findings);

/// What a save would refuse, lose or say of the document that was read from `file`: of a template
/// the export of one.
void CheckSave(ByteView file, const JudgedPictures& pictures, Findings& findings);

} // namespace vypx
