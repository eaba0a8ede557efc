#include "reader/FamilyWalk.h"

#include "companion/DensityMark.h"

#include <algorithm>

namespace vypx {

namespace {

int PixelSizeAt(ByteView resource, std::size_t position)
{
    return resource.U8(position + PixelSizeOffset);
}

class FamilyWalker {
public:
    FamilyWalker(ByteView resource, const std::function<void(const ShownRecord&)>& pick)
        : m_resource(resource)
        , m_pick(pick)
    {
    }

    void Run();

private:
    /// What the walk knows. Positions and sizes in bytes of the resource.
    struct Walk {
        bool lastLowFound = false, lowDone = false, highDone = false;
        int lowDepth = 0, highDepth = 0;
        std::size_t lowPos = 0, lowSize = 0, highSize = 0;

        friend bool operator==(const Walk&, const Walk&) = default;
    };

    void OuterPass();
    void DecodeHighDensity(std::size_t position);

    ByteView m_resource;
    const std::function<void(const ShownRecord&)>& m_pick;
    Walk m_walk;
};

void FamilyWalker::Run()
{
    for (;;) {
        if (m_walk.lastLowFound && m_walk.highDepth == 0)
            m_walk.highDone = true; // there is no high-density member
        if (m_walk.lowDone && m_walk.highDone)
            return;
        const Walk before = m_walk;
        OuterPass();
        // A pass that found out nothing leaves the next one nothing to do: links that lead nowhere.
        if (m_walk == before)
            return;
    }
}

void FamilyWalker::OuterPass()
{
    std::size_t position = 0;
    while (position < m_resource.Size()) {
        const int pixelSize = PixelSizeAt(m_resource, position);
        if (pixelSize == DensityMarkPixelSize) {
            DecodeHighDensity(position + DensityMarkSize);
            return;
        }
        if (m_walk.lowDone)
            return; // after the low-density member only the mark can follow
        if (m_walk.lastLowFound) {
            m_walk.lowDone = true;
            m_pick({ .position = m_walk.lowPos, .size = m_walk.lowSize, .highDensity = false });
            position = m_walk.lowPos + m_walk.lowSize;
            continue;
        }
        m_walk.lowPos = position;
        m_walk.lowDepth = pixelSize;
        const std::size_t next = m_resource.U16(position + 10) * std::size_t{ 4 };
        if (next == 0) {
            m_walk.lastLowFound = true;
            m_walk.lowSize = m_resource.Size() - position;
            return;
        }
        m_walk.lowSize = next;
        position += next;
    }
}

void FamilyWalker::DecodeHighDensity(std::size_t position)
{
    if (m_walk.highDone)
        return;
    if (m_walk.lowDepth == 0)
        m_walk.lowDone = true; // the mark came first: there is no low-density member
    while (position < m_resource.Size()) {
        const std::size_t next = m_resource.U24(position + 21);
        if (next == 0 || !m_walk.lastLowFound)
            m_walk.highSize = m_resource.Size() - position;
        if (!m_walk.lastLowFound) {
            m_walk.highDepth = PixelSizeAt(m_resource, position);
            if (next == 0) {
                m_walk.lastLowFound = true;
                return;
            }
        } else if (PixelSizeAt(m_resource, position) == m_walk.highDepth) {
            // On purpose: of two with that pixel size the first is taken.
            m_walk.highDone = true;
            m_pick({ .position = position, .size = m_walk.highSize, .highDensity = true });
            return;
        } else if (next == 0) {
            return;
        }
        position += next;
    }
}

} // namespace

Bytes ShownRecord::BytesOf(ByteView resource) const
{
    const auto record = resource.Part(position, size).Span();
    // On purpose: twice as long as the resource. A decoder that runs past the record reads zeros
    // up to there.
    Bytes bytes(2 * resource.Size());
    std::copy(record.begin(), record.end(), bytes.begin());
    return bytes;
}

void WalkFamily(ByteView resource, const std::function<void(const ShownRecord&)>& pick)
{
    FamilyWalker(resource, pick).Run();
}

} // namespace vypx
