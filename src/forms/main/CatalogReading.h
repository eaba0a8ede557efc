#pragma once

#include "catalogs/CatalogFiles.h"
#include "forms/common/Ask.h"
#include "forms/main/Notes.h"

#include <QObject>
#include <vector>

namespace vypx {

/// Reads the catalogs, tells in boxes what is wrong with them, and notes what can't be seen of a
/// file.
class CatalogReading : public QObject {
    Q_OBJECT

public:
    CatalogReading(QWidget& form, Ask& ask, Notes& notes);

    /// Of a start.
    void ReadAll();
    /// AppList.dat and PalmApp.dat anew. Boxes stand over `boxParent`.
    void ReadApps(QWidget* boxParent);
    void ReadPalm(QWidget* boxParent);

signals:
    /// A catalog may offer something else.
    void Read();

private:
    using Reader = std::optional<CutCatalog> (&)(const ShowMessage& show);

    void ReadAnew(const std::string& file, Reader read, QWidget* boxParent);
    ShowMessage ShowOver(QWidget* boxParent);
    void ShowNotes();

    QWidget& m_form;
    Ask& m_ask;
    Notes& m_notes;
    std::vector<CutCatalog> m_cut; // by the last reading of each
};

} // namespace vypx
