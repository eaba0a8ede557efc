#pragma once

#include "forms/common/Ask.h"
#include "forms/common/FileTaker.h"
#include "forms/main/AppSearch.h"
#include "forms/main/BusyGuard.h"
#include "forms/main/Documents.h"
#include "forms/main/Session.h"

#include <QStringList>
#include <QTimer>
#include <optional>

namespace vypx {

/// Opens the files that the desktop asks for. They wait for the end of the start, of splash and
/// tip, a load, a search, and of every window or menu that keeps the form from being used.
class OutsideFiles : public FileTaker {
    Q_OBJECT

public:
    /// `frame` is the main window, around `form`.
    OutsideFiles(QWidget& frame, QWidget& form, Ask& ask, BusyGuard& busy, AppSearch& search,
        Documents& documents, Session& session);

    /// The start has come to its end; until then everything waits.
    void Begin();

    bool IsFree() const override;
    bool Take(const OutsideFile& file) override;
    void Tell(const QString& text) override;
    void ComeUp(const Activation& activation) override;

private:
    bool IsKeptWaiting() const;
    bool IsKeptByWindow() const;
    void LookAgain();
    void GoOn();
    void Serve();
    void GiveBack();
    void GiveBack(const OutsideFile& file);
    void ShowTexts(QWidget* parent);
    bool eventFilter(QObject* watched, QEvent* event) override;

    QWidget& m_frame;
    QWidget& m_form;
    Ask& m_ask;
    BusyGuard& m_busy;
    AppSearch& m_search;
    Documents& m_documents;
    Session& m_session;
    QTimer m_look; // for what nothing else tells of
    std::optional<OutsideFile> m_waiting;
    std::optional<Activation> m_comesUp; // at the end of the start
    QStringList m_texts;
    int m_moreTexts = 0; // that were not kept
    bool m_hasBegun = false, m_isServing = false;
};

} // namespace vypx
