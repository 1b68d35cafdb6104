#ifndef VELACONTAINERS_H
#define VELACONTAINERS_H

#include <map>
#include <vector>

namespace Vela {

// The host's growable contiguous array. It has the semantics of std::vector and converts from and
// to it freely; exported signatures take it by value or const reference and copy it.
template<typename T>
class CArrayList : public std::vector<T>
{
public:
    using std::vector<T>::vector;
    CArrayList() = default;
    CArrayList(const std::vector<T> &other)
        : std::vector<T>(other)
    { }
    CArrayList(std::vector<T> &&other)
        : std::vector<T>(std::move(other))
    { }

    int GetCount() const { return static_cast<int>(this->size()); }
};

// The host's ordered map over a standard ordered map (the third parameter names that map).
template<typename K, typename V, typename Base = std::map<K, V>>
class CMap : public Base
{
public:
    using Base::Base;
    CMap() = default;
    CMap(const Base &other)
        : Base(other)
    { }
    CMap(Base &&other)
        : Base(std::move(other))
    { }

    bool Contains(const K &key) const { return this->find(key) != this->end(); }
};

} // namespace Vela

#endif // VELACONTAINERS_H
