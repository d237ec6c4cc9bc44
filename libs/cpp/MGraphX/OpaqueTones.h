#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace MGraphX
{

/// What the toolkit's painter makes of opaque Format_ARGB32 pixels when it lays translucent words
/// over them. Its way there is its own, by 16 bits a channel, and each channel goes it alone: so
/// for each word that comes up, the painter is asked once, with a ramp of the 256 grays.
class OpaqueTones
{
public:
    OpaqueTones();

    /// Lays `over` over the opaque words `under`. Few words should differ, as those of a gradient
    /// do.
    void layRow(const uint32_t* over, const uint32_t* under, uint32_t* target, int count);

private:
    struct Tones {
        uint32_t word = 0;
        std::array<uint32_t, 256> ofGray;
    };

    const Tones& tonesOf(uint32_t word);

    std::vector<std::unique_ptr<Tones>> m_slots; // open addressing; never full
    int m_used = 0;
};

} // namespace MGraphX
