#pragma once

#include "cli/OutputFolder.h"
#include "cli/ReadIconset.h"

#include <map>
#include <string>
#include <vector>

namespace vypx {

/// A picture that went into a folder, or why it did not.
struct ExtractedPicture {
    PictureHeader header; ///< without a file's name: nothing of the resource was read, but its key
    std::string file;     ///< bare name; empty: it was passed over
    std::string whyNot;   ///< in words; empty: the file is there
};

/// Writes the pictures of a load into a folder as they come.
class PictureFiles : public PictureSink {
public:
    explicit PictureFiles(OutputFolder& folder);

    bool GoOn() override { return m_failure.empty(); }
    bool Wants(const PictureHeader& header) override;
    void Take(const PictureHeader& header, Picture picture) override;

    /// Notes a resource of pictures that gave none, unless one of it came.
    void NoteMissing(const std::string& resourceKey, std::string whyNot);

    const std::vector<ExtractedPicture>& Pictures() const { return m_pictures; }
    /// What ended the writing before its time, in words for the user (UTF-8); empty: nothing did.
    const std::string& Failure() const { return m_failure; }

private:
    void PassOver(const PictureHeader& header, std::string whyNot);

    OutputFolder& m_folder;
    std::int64_t m_pixelsLeft;
    std::map<std::string, int> m_times; ///< how often a file's name was asked for
    std::vector<ExtractedPicture> m_pictures;
    std::string m_failure;
};

} // namespace vypx
