#pragma once

#include <QLabel>
#include <QString>
#include <array>
#include <string>

class QStatusBar;

namespace vypx {

/// The two panels of the status bar (StatusBar1_Panel1, StatusBar1_Panel2), and the frame's title.
class StatusTexts {
public:
    /// `frame` has the title.
    StatusTexts(QStatusBar& bar, QWidget& frame);

    /// Of a path, in panel 1.
    void ShowFileName(const std::string& path);
    void ClearFileName();
    /// Latin-1, in panel 2.
    void ShowDatabaseName(const std::string& name);
    void Clear();

    /// The frame's title by FileLoaded, FileName, DatabaseName and IconsetChanged: "set.prc* - VY
    /// Pixelworks", the star for a document with changes. One that has no file yet goes by its
    /// database name.
    void ShowTitle();

private:
    void Show(int panel, const QString& text);

    QWidget& m_frame;
    std::array<QLabel*, 2> m_panels;
};

} // namespace vypx
