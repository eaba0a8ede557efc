#include "forms/main/LoadWatcher.h"

#include "document/Document.h"
#include "forms/common/Text.h"

#include <QCoreApplication>

namespace vypx {

namespace {

/// Lets the form paint; the guard keeps the user's input out.
void RunPendingEvents() { QCoreApplication::processEvents(); }

/// A text without the resource that it names: a broken file has it for each of its pictures.
std::string WithoutResource(std::string_view text)
{
    constexpr std::string_view Following = " following ";
    return std::string(text.substr(0, text.find(Following)));
}

} // namespace

LoadWatcher::LoadWatcher(const View& view, Ask& ask)
    : m_view(view)
    , m_ask(ask)
{
}

void LoadWatcher::Begin()
{
    m_told.clear();
    m_sincePaint.start();
}

void LoadWatcher::End()
{
    BusyEnded();
    ProgressHidden();
    m_view.tree.setVisible(true);
}

QString LoadWatcher::WhatWasNotShown() const
{
    QStringList sentences;
    for (const auto& [kind, told] : m_told) {
        const int more = told.times - MostBoxesOfOneText;
        if (more > 0)
            sentences << (more == 1 ? tr("1 more message: %1")
                                    : tr("%1 more messages: %2").arg(more))
                             .arg(FromLatin1(told.last));
    }
    return sentences.join('\n');
}

void LoadWatcher::Message(std::string_view text)
{
    Told& told = m_told[WithoutResource(text)];
    told.last = text;
    if (++told.times <= MostBoxesOfOneText)
        m_ask.Show(&m_view.form, { .text = FromLatin1(text) });
}

void LoadWatcher::BeginLoad()
{
    for (ImagePanel* panel : m_view.panels)
        panel->ClearTexts();
    emit Began();
}

void LoadWatcher::TreeCleared()
{
    m_view.tree.setVisible(false);
    emit Cleared();
    m_view.working.setVisible(true);
    RunPendingEvents();
}

void LoadWatcher::DocumentNamed()
{
    m_view.status.ShowFileName(FileName);
    m_view.status.ShowDatabaseName(DatabaseName);
    RunPendingEvents();
}

void LoadWatcher::ClearPictures()
{
    for (ImagePanel* panel : m_view.panels)
        panel->ClearPicture();
    RunPendingEvents();
}

void LoadWatcher::WalkGivenUp()
{
    m_view.working.setVisible(false);
    m_view.status.ClearFileName();
}

void LoadWatcher::Busy(std::string_view text) { m_view.working.setText(FromLatin1(text)); }

void LoadWatcher::BusyEnded()
{
    m_view.working.setVisible(false);
    m_view.working.setText("Working....");
}

void LoadWatcher::ProgressMaximum(int maximum) { m_view.progress.setMaximum(maximum); }

void LoadWatcher::ProgressShown()
{
    m_count = 0;
    m_view.progress.setValue(0);
    m_view.progress.setVisible(true);
}

/// The bar formats and paints itself at every value, so it gets those that are seen.
void LoadWatcher::Progress(int count)
{
    constexpr qint64 BetweenPaints = 16; // milliseconds
    if (m_view.progress.maximum() < count)
        return;
    m_count = count;
    if (m_sincePaint.elapsed() < BetweenPaints)
        return;
    m_sincePaint.restart();
    m_view.progress.setValue(count);
    RunPendingEvents();
}

void LoadWatcher::ProgressHidden()
{
    m_view.progress.setValue(m_count);
    m_view.progress.setVisible(false);
}

void LoadWatcher::Opened()
{
    BusyEnded();
    emit DocumentOpened();
    m_view.tree.setVisible(true);
}

} // namespace vypx
