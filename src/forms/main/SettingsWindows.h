#pragma once

#include "forms/common/Ask.h"
#include "forms/main/Commands.h"
#include "forms/main/ViewEntries.h"
#include "settings/DepthChoices.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

namespace vypx {

class frmProgOptions;
class frmSelectCDepth;

/// The windows in which colour depth, resolution and the other options are chosen. What one of
/// them chooses, the other and the main form show.
class SettingsWindows : public QObject {
    Q_OBJECT

public:
    /// `depthLabel` is lblTargetCD.
    SettingsWindows(
        QWidget& form, Commands& commands, ViewEntries& views, QLabel& depthLabel, Ask& ask);

    void ShowOptions();
    /// Asks for depth and resolution of a document that is to be opened or made.
    void AskForDepth();
    bool AsksForDepth() const;
    void CloseDepthWindow();
    /// The window for that, where it stands, takes no input for a while.
    void HoldDepthWindow(bool on);

    /// A document began with what was chosen, or there is none whose depth could differ from it.
    void KeepChoices() { m_choices.Keep(); }
    /// No document came of them: the open one keeps its depth and resolution.
    void TakeBackChoices();

    /// Of the open document, while another one may be chosen for the next.
    ColorDepth DepthOfDocument() const { return m_choices.DepthOfDocument(); }
    void ShowDepth();
    /// The user's choice whether tips are shown at a start has changed.
    void ShowTipsOption();
    /// An iconset was opened or closed: the colour depth can only be changed without one.
    void ShowDepthLock();
    /// For the exit: nothing keeps them open.
    void CloseAll();

signals:
    /// The depth is chosen: on to the document.
    void DepthDone();
    /// The depth window was left by its frame or by Escape.
    void DepthGivenUp();
    /// The options window was closed: the settings are to be saved.
    void OptionsDone();

private:
    QWidget& m_form;
    ViewEntries& m_views;
    QLabel& m_depthLabel;
    Ask& m_ask;
    DepthChoices m_choices;
    QPointer<frmProgOptions> m_options;
    QPointer<frmSelectCDepth> m_depthWindow;
};

/// Brings a window that does not block to the front.
void BringUp(QWidget& window);

} // namespace vypx
