#pragma once

#include "cli/Findings.h"
#include "cli/ReadIconset.h"

#include <cstddef>
#include <map>
#include <optional>

namespace vypx {

/// Judges the pictures that a load decodes, and learns how long their records would be in a saved
/// file.
class JudgedPictures : public PictureSink {
public:
    /// Of a template no picture is kept, so that only those are told that get lost.
    JudgedPictures(Findings& findings, bool ofTemplate)
        : m_findings(findings)
        , m_ofTemplate(ofTemplate)
    {
    }

    bool GoOn() override { return true; }
    bool Wants(const PictureHeader& header) override;
    void Take(const PictureHeader& header, Picture picture) override;

    /// What a save makes of a picture.
    struct Record {
        std::size_t bytes = 0;
        bool isTooLarge = false; ///< a record can't tell it
        bool isUnknown = false;  ///< it was passed over
    };
    /// By the bare name of its working file; empty: there would be no such file.
    std::optional<Record> RecordOf(const std::string& file) const;

private:
    void JudgeSize(const PictureHeader& header);
    void JudgeTemplatePicture(const PictureHeader& header, const Picture& picture);

    Findings& m_findings;
    bool m_ofTemplate;
    std::map<std::string, Record> m_records;
};

} // namespace vypx
