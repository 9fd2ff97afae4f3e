#include "dev/catalog/drawings/solids/Body.h"

namespace devcatalog
{

Face quadrangle(const Vector3& a, const Vector3& b, const Vector3& c, const Vector3& d)
{
    return {{{a, b, c, d}}, normalized(cross(c - a, d - b))};
}

} // namespace devcatalog
