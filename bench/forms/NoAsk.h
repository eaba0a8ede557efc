#pragma once

#include "forms/common/Ask.h"

namespace vypx {

/// Nobody sits there: boxes are agreed to, dialogs cancelled.
class NoAsk : public Ask {
    QMessageBox::StandardButton Show(QWidget*, const Box&) override { return QMessageBox::Ok; }
    QString OpenFile(QWidget*, const OpenQuestion&) override { return {}; }
    std::optional<QString> SaveFile(QWidget*, const SaveQuestion&) override { return {}; }
    QString ChooseFolder(QWidget*, const FolderQuestion&) override { return {}; }
    void Beep() override { }
};

} // namespace vypx
