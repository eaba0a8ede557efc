#pragma once

#include "support/SearchFixture.h"

#include <deque>

namespace vypx::test {

/// Edits of the catalogs: keeps the boxes and answers them.
class Editing : public Searching {
protected:
    static CatalogBox Plain(const std::string& text) { return { .text = text }; }
    static std::string PalmItems() { return ReadSystemText(PalmAppFile()); }

    /// Nothing can be written there any more, nor read.
    static void Block(const std::string& file)
    {
        std::filesystem::remove(file);
        std::filesystem::create_directory(file);
    }

    std::vector<CatalogBox> boxes;
    std::deque<bool> answers; ///< to the first boxes: whether OK is pressed
    bool answer = true;       ///< to all others
    ShowBox show = [this](const CatalogBox& box) {
        boxes.push_back(box);
        if (answers.empty())
            return answer;
        const bool first = answers.front();
        answers.pop_front();
        return first;
    };
};

} // namespace vypx::test
