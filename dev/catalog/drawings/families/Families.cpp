#include "dev/catalog/drawings/families/Families.h"

#include <map>
#include <stdexcept>

namespace devcatalog
{

Solid buildSolid(std::string_view family, const Configuration& configuration)
{
    using Builder = void (*)(Solid&, const Dimensions&);
    static const std::map<std::string_view, Builder> builders = {
        {"hex-bolt", hexBolt},
        {"socket-screw", socketScrew},
        {"hex-nut", hexNut},
        {"washer", washer},
        {"dowel-pin", dowelPin},
        {"star-knob", starKnob},
        {"ball-bearing", ballBearing},
        {"pillow-block", pillowBlock},
        {"spur-gear", spurGear},
        {"v-belt-pulley", beltPulley},
        {"compression-spring", compressionSpring},
        {"angle-bracket", angleBracket},
        {"aluminium-profile", aluminiumProfile},
        {"pipe-flange", pipeFlange},
        {"bridge-handle", bridgeHandle},
        {"enclosure", enclosure},
        {"pneumatic-cylinder", pneumaticCylinder},
        {"proximity-sensor", proximitySensor},
        {"stepper-motor", stepperMotor},
    };
    const auto builder = builders.find(family);
    if (builder == builders.end())
        throw std::invalid_argument("unknown family " + std::string(family));
    Solid solid;
    builder->second(solid, Dimensions(configuration));
    return solid;
}

} // namespace devcatalog
