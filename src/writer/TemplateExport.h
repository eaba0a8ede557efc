#pragma once

#include "settings/ColorDepth.h"
#include "writer/SaveFailure.h"
#include "writer/SaveReport.h"

#include <optional>
#include <string>
#include <string_view>

namespace vypx {

/// What keeps the open document from being exported as a template, in the words that the user
/// reads; by the counters of the last count. Empty: nothing does.
std::optional<std::string_view> WhyNotExported();

/// Whether that path (UTF-8) leads to the open document's own file, under whatever name; of one
/// that has gone, to its place. False for a document without a file.
bool IsOpenFile(const std::string& path);

/// Whether a template at that path (UTF-8) would take the place of the open document's own file
/// while that is an iconset. One that was loaded as a template, and that
/// nothing was saved into since, may be written over by a template.
bool WouldReplaceOpenIconset(const std::string& path);

/// Writes the open document as a template: its icons, labels, resources and applications, and no
/// picture. Sets TemplatePath; the document stays as it is. Trusts that the caller has made every
/// check. Throws SaveFailure; then what stood there before stands.
SaveReport ExportTemplate(const std::string& path, ColorDepth depth = DefaultColorDepth);

} // namespace vypx
