#include "devcatalog/parts/Offers.h"

namespace devcatalog
{

const std::vector<Offer>& offers()
{
    static const std::vector<Offer> all = {
        {"hex-bolt",
         "Brandmoor & Vogelsang",
         "Hex bolt {size}",
         "Hexagon head bolt {size}, partly threaded.",
         "",
         "",
         {{"Material", "Steel 8.8, zinc plated", ""}, {"Thread", "partial", ""}},
         {}},
        {"hex-bolt",
         "Fjellbekk Fasteners AS",
         "Hex screw {size} A2",
         "",
         "",
         "",
         {{"Material", "Stainless steel A2", ""}, {"Thread", "full", ""}},
         {}},
        {"hex-nut",
         "Brandmoor & Vogelsang",
         "Hex nut {size}",
         "Hexagon nut {size}, thin or standard.",
         "",
         "",
         {{"Material", "Steel 8, zinc plated", ""}},
         {}},
        {"washer",
         "Brandmoor & Vogelsang",
         "Washer {size}",
         "Flat washer for {size} hex bolts.",
         "",
         "",
         {{"Material", "Steel 200 HV", ""}},
         {}},
    };
    return all;
}

} // namespace devcatalog
