#pragma once

#include "forms/common/SideForm.h"

#include <memory>

namespace Ui {
class frmShareList;
}

namespace vypx {

class ListBox;

/// The side window with the labels of the other icons that share the selected icon's images.
class frmShareList : public SideForm {
    Q_OBJECT

public:
    frmShareList();
    ~frmShareList() override;

    /// listShared, which somebody else fills.
    ListBox& List();

signals:
    /// The user chose an entry. The list may be filled anew meanwhile.
    void Chosen(const QString& label);

private:
    std::unique_ptr<Ui::frmShareList> m_ui;
};

} // namespace vypx
