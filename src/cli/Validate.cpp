#include "cli/Validate.h"

#include "cli/FileChecks.h"
#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/Slot.h"
#include "platform/Platform.h"
#include "reader/ResourceList.h"
#include "writer/CompileIconset.h"
#include "writer/SaveChecks.h"
#include "writer/TemplateExport.h"

#include <iostream>

namespace vypx {

namespace {

/// Judges the pictures that a load decodes.
class JudgedPictures : public PictureSink {
public:
    explicit JudgedPictures(Findings& findings)
        : m_findings(findings)
    {
    }

    bool GoOn() override { return true; }
    bool Wants(const PictureHeader& header) override
    {
        JudgeSize(header);
        if (!IsWithinLimits(header))
            m_findings.Add(PlaceOf(header), "it claims more pixels than are looked at");
        return IsWithinLimits(header);
    }
    void Take(const PictureHeader& header, Picture picture) override
    {
        if (picture.IsNull())
            m_findings.Add(PlaceOf(header), "it gives no picture, and none is saved");
    }

private:
    static std::string PlaceOf(const PictureHeader& header)
    {
        return header.file.substr(0, header.file.rfind('.'));
    }
    /// Against the slots of the icons that show it.
    void JudgeSize(const PictureHeader& header);

    Findings& m_findings;
};

void JudgedPictures::JudgeSize(const PictureHeader& header)
{
    const Slot& slot = header.highDensity ? SlotLG : SlotSM;
    for (const IconRow& row : IconTable) {
        if (row.ResourceKey != header.resourceKey)
            continue;
        const std::optional<SizeClass> size = SizeToImport(row.IconLabel);
        if (!size)
            continue;
        const PixelSize limit = slot.LimitOf(*size);
        if (header.width > limit.width || header.height > limit.height)
            m_findings.Add(PlaceOf(header),
                "it has " + std::to_string(header.width) + " x " + std::to_string(header.height)
                    + " pixels, more than the " + std::to_string(limit.width) + " x "
                    + std::to_string(limit.height) + " of \"" + row.IconLabel + "\"");
    }
}

void JudgeBytes(ByteView file, Findings& findings)
{
    if (file.Size() < DatabaseHeaderSize)
        return;
    CheckHeader(file, findings);
    const std::vector<ListedResource> resources = ListedResources(file);
    CheckList(file, resources, findings);
    CheckIndex(file, resources, findings);
    for (const ListedResource& resource : resources) {
        const ByteView data = resource.Data(file);
        if (resource.HasPictures() && data.Size() > 0)
            CheckPictures(resource.Name(), data, findings);
    }
}

/// The rows of the tree, as the window would show them.
void JudgeIcons(Findings& findings)
{
    for (const IconRow& row : IconTable) {
        if (row.IconLabel.empty())
            continue;
        if (row.IconKind == KindDelete)
            findings.Add(row.ResourceKey,
                "it is an orphan, as the index does not name it: a save leaves it out");
        else if (row.IconKind == KindUnknown && !row.owner.IsKnown())
            findings.Add(row.ResourceKey, "no application is known for it");
        const bool hasPicture = ImageFileValid(row.LowResFile) || ImageFileValid(row.HighResFile);
        if (!hasPicture && !LoadedAsTemplate)
            findings.Add(row.ResourceKey, "it has no picture: a save leaves it out");
    }
}

/// What a save would say of the open document.
void JudgeSave(Findings& findings)
{
    const auto whyNot = LoadedAsTemplate ? WhyNotExported() : WhyNotSaved();
    if (whyNot) {
        findings.Add("save", *whyNot);
        return;
    }
    const std::string note =
        NoteOf(ReportOn(PictureRows(LoadedAsTemplate), CollectWrittenIndex(LoadedAsTemplate)));
    if (!note.empty())
        findings.Add("save", note);
}

} // namespace

Findings Judged(const ReadOptions& options)
{
    Findings findings;
    JudgedPictures pictures(findings);
    const ReadEnd end = ReadIconset(options, pictures);
    for (const std::string& text : end.messages)
        findings.Add("load", text);
    if (const std::string note = NoteOf(end.report); !note.empty())
        findings.Add("load", Latin1FromUtf8(note));
    if (const auto bytes = platform::ReadWholeFile(options.file, LargestIconset))
        JudgeBytes(*bytes, findings);
    if (end.IsOpened()) {
        JudgeIcons(findings);
        JudgeSave(findings);
    }
    return findings;
}

int Validate(const ReadOptions& options)
{
    const Findings findings = Judged(options);
    for (const std::string& line : findings.Lines())
        std::cout << line << '\n';
    return findings.Lines().empty() ? 0 : 1;
}

} // namespace vypx
