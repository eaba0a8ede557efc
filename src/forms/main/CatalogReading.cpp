#include "forms/main/CatalogReading.h"

#include "document/WorkingFolder.h"
#include "forms/common/Text.h"

namespace vypx {

CatalogReading::CatalogReading(QWidget& form, Ask& ask, Notes& notes)
    : m_form(form)
    , m_ask(ask)
    , m_notes(notes)
{
}

void CatalogReading::ReadAll()
{
    m_cut = ReadCatalogs(ShowOver(&m_form));
    ShowNotes();
    emit Read();
}

void CatalogReading::ReadApps(QWidget* boxParent)
{
    ReadAnew(AppListFile(), ReadAppIni, boxParent);
}

void CatalogReading::ReadPalm(QWidget* boxParent)
{
    ReadAnew(PalmAppFile(), ReadPalmAppIni, boxParent);
}

void CatalogReading::ReadAnew(const std::string& file, Reader read, QWidget* boxParent)
{
    const std::optional<CutCatalog> cut = read(ShowOver(boxParent));
    std::erase_if(
        m_cut, [&](const CutCatalog& before) { return before.file == LastComponent(file); });
    if (cut)
        m_cut.push_back(*cut);
    ShowNotes();
    emit Read();
}

ShowMessage CatalogReading::ShowOver(QWidget* boxParent)
{
    return [this, boxParent](
               std::string_view text) { m_ask.Show(boxParent, { .text = FromLatin1(text) }); };
}

void CatalogReading::ShowNotes()
{
    QStringList notes;
    for (const CutCatalog& cut : m_cut)
        notes << QString::fromStdString(NoteOf(cut));
    m_notes.Tell(Notes::Kind::Catalog, notes.join('\n'));
}

} // namespace vypx
