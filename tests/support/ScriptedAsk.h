#pragma once

#include "forms/common/Ask.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace vypx::test {

/// Stands in for the user: answers boxes and dialogs from a queue and keeps what they showed.
/// A box that nobody expected fails the test, and so does an answer that nobody asked for.
class ScriptedAsk : public Ask {
public:
    ~ScriptedAsk() override
    {
        EXPECT_TRUE(m_boxes.empty()) << "an answer was queued and no box came";
        EXPECT_TRUE(m_files.empty()) << "a file was queued and no dialog came";
        EXPECT_TRUE(m_targets.empty()) << "a file to save was queued and no dialog came";
        EXPECT_TRUE(m_folders.empty()) << "a folder was queued and no dialog came";
    }

    /// The next box is answered so; `during` runs while it is up.
    void Answer(QMessageBox::StandardButton button, std::function<void()> during = {})
    {
        m_boxes.push_back({ button, std::move(during) });
    }
    /// Boxes that nobody expected are answered so and fail no test.
    void AnswerFurther(QMessageBox::StandardButton button) { m_further = button; }
    /// The next file dialog gives this path; `during` runs while it is up.
    void Choose(const QString& path, std::function<void()> during = {})
    {
        m_files.push_back({ path, std::move(during) });
    }
    void CancelDialog() { Choose({}); }
    /// The next dialog that saves gives this path.
    void SaveTo(const QString& path) { m_targets.push_back(path); }
    void CancelSave() { m_targets.push_back(std::nullopt); }
    /// The next dialog for a folder gives this path; empty: it is cancelled.
    void ChooseFolder(const QString& path) { m_folders.push_back(path); }

    QMessageBox::StandardButton Show(QWidget*, const Box& box) override
    {
        shown.push_back(box);
        if (m_boxes.empty() && m_further)
            return *m_further;
        if (m_boxes.empty()) {
            ADD_FAILURE() << "unexpected box: " << box.text.toStdString();
            return QMessageBox::Cancel;
        }
        const BoxAnswer answer = m_boxes.front();
        m_boxes.pop_front();
        if (answer.during)
            answer.during();
        return answer.button;
    }

    QString OpenFile(QWidget*, const OpenQuestion& question) override
    {
        opened.push_back(question);
        if (m_files.empty()) {
            ADD_FAILURE() << "unexpected file dialog: " << question.title.toStdString();
            return {};
        }
        const FileAnswer answer = m_files.front();
        m_files.pop_front();
        if (answer.during)
            answer.during();
        return answer.path;
    }

    std::optional<QString> SaveFile(QWidget*, const SaveQuestion& question) override
    {
        saved.push_back(question);
        if (m_targets.empty()) {
            ADD_FAILURE() << "unexpected dialog to save: " << question.title.toStdString();
            return {};
        }
        const std::optional<QString> path = m_targets.front();
        m_targets.pop_front();
        return path;
    }

    QString ChooseFolder(QWidget*, const FolderQuestion& question) override
    {
        folders.push_back(question);
        if (m_folders.empty()) {
            ADD_FAILURE() << "unexpected dialog for a folder: " << question.title.toStdString();
            return {};
        }
        const QString path = m_folders.front();
        m_folders.pop_front();
        return path;
    }

    void Beep() override { ++beeps; }

    std::vector<Box> shown;
    std::vector<OpenQuestion> opened;
    std::vector<SaveQuestion> saved;
    std::vector<FolderQuestion> folders;
    int beeps = 0;

private:
    struct BoxAnswer {
        QMessageBox::StandardButton button;
        std::function<void()> during;
    };
    struct FileAnswer {
        QString path;
        std::function<void()> during;
    };
    std::deque<BoxAnswer> m_boxes;
    std::optional<QMessageBox::StandardButton> m_further;
    std::deque<FileAnswer> m_files;
    std::deque<std::optional<QString>> m_targets;
    std::deque<QString> m_folders;
};

} // namespace vypx::test
