#include "forms/desktop/Desktop.h"

#ifdef VYPX_BUS
#include "forms/desktop/BusDesktop.h"
#else
#include "forms/desktop/FileEvents.h"
#endif

namespace vypx {

struct Desktop::Road {
#ifdef VYPX_BUS
    BusDesktop bus;

    explicit Road(FileTaker& own)
        : bus(own)
    {
    }
    void Finish() { bus.Finish(); }
#else
    BundleCopies copies;
    FileEvents events;

    explicit Road(FileTaker& own)
        : events(own, copies)
    {
    }
    void Finish() { events.Finish(); }
#endif
};

Desktop::Desktop(FileTaker& own)
    : m_road(std::make_unique<Road>(own))
{
}

Desktop::~Desktop() = default;

void Desktop::Finish() { m_road->Finish(); }

} // namespace vypx
