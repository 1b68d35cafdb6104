#ifndef VELAVECTOR_H
#define VELAVECTOR_H

#include <QMetaType>

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

// A plain four-component vector (x, y, z, w), copied by value. CVector4<float> is the value that
// every numerical widget reports; signal signatures spell it CVector4f.
template<typename T>
struct CVector4
{
    T x = T();
    T y = T();
    T z = T();
    T w = T();

    constexpr CVector4() = default;
    constexpr CVector4(T ax, T ay, T az, T aw)
        : x(ax)
        , y(ay)
        , z(az)
        , w(aw)
    { }

    // Component nIndex in the order x, y, z, w; an index outside 0..3 reads as T().
    constexpr T operator[](int nIndex) const
    {
        return nIndex == 0 ? x : nIndex == 1 ? y : nIndex == 2 ? z : nIndex == 3 ? w : T();
    }
    // Replaces component nIndex; an index outside 0..3 changes nothing.
    constexpr void Set(int nIndex, T value)
    {
        switch (nIndex) {
        case 0:
            x = value;
            break;
        case 1:
            y = value;
            break;
        case 2:
            z = value;
            break;
        case 3:
            w = value;
            break;
        default:
            break;
        }
    }

    friend constexpr bool operator==(const CVector4 &a, const CVector4 &b)
    {
        return a.x == b.x && a.y == b.y && a.z == b.z && a.w == b.w;
    }
    friend constexpr bool operator!=(const CVector4 &a, const CVector4 &b) { return !(a == b); }
};

using CVector4f = CVector4<float>;

} // namespace Vela

// Known to the meta-type system as "Vela::CVector4f", the spelling of the signal signatures, so
// that queued connections and QSignalSpy carry it. The library also registers it at load time.
Q_DECLARE_METATYPE(Vela::CVector4f)

#endif // VELAVECTOR_H
