#ifndef VELAVECTOR_H
#define VELAVECTOR_H

namespace Vela {

// A plain three-component vector (x, y, z).
template<typename T>
struct CVector3
{
    T x = T();
    T y = T();
    T z = T();

    constexpr CVector3() = default;
    constexpr CVector3(T ax, T ay, T az)
        : x(ax)
        , y(ay)
        , z(az)
    { }

    friend constexpr bool operator==(const CVector3 &a, const CVector3 &b)
    {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend constexpr bool operator!=(const CVector3 &a, const CVector3 &b) { return !(a == b); }
};

} // namespace Vela

#endif // VELAVECTOR_H
