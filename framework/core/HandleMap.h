// HandleMap.h - finds the C++ object of a system handle; each thread has one map per kind of handle.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

/// Maps handles to the objects that own them (permanent) and to objects made on demand for handles that no object owns
/// (temporary). The map owns its temporary objects and keeps them until DeleteTemporary.
template <class Handle, class Object>
class HandleMap {
public:
    /// Releases an object's hold on its handle, so that destroying the object leaves the handle alone.
    using Release = void (*)(Object&);

    explicit HandleMap(Release release) : m_release(release) {}
    ~HandleMap() { DeleteTemporary(); }
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;

    Object* FindPermanent(Handle handle) const { return Find(m_permanent, handle); }
    Object* FindTemporary(Handle handle) const { return Find(m_temporary, handle); }

    /// Throws std::bad_alloc, and then has not changed.
    void SetPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }
    /// Forgets the handle if that object is the one known for it; two objects may hold the same stock object.
    void RemovePermanent(Handle handle, const Object* object) {
        if (FindPermanent(handle) == object)
            m_permanent.erase(handle);
    }

    /// Takes over a temporary object. One made earlier for the same handle is no longer found but stays alive, since
    /// callers may still hold it. Throws std::bad_alloc, and then holds no object for it; the handle is left alone.
    Object* AddTemporary(Handle handle, std::unique_ptr<Object> object) {
        Object* const added = object.get();
        try {
            m_temporary[handle] = added;
            m_ownedTemporary.push_back(std::move(object));
        } catch (...) {
            if (FindTemporary(handle) == added)
                m_temporary.erase(handle);
            m_release(*added);
            throw;
        }
        return added;
    }

    /// Destroys all temporary objects, but not their handles.
    void DeleteTemporary() {
        m_temporary.clear();
        std::vector<std::unique_ptr<Object>> dying;
        dying.swap(m_ownedTemporary);
        for (auto& object : dying)
            m_release(*object);
    }

    std::size_t PermanentCount() const { return m_permanent.size(); }
    std::size_t TemporaryCount() const { return m_ownedTemporary.size(); }

private:
    using Table = std::unordered_map<Handle, Object*>;

    static Object* Find(const Table& table, Handle handle) {
        auto found = table.find(handle);
        return found == table.end() ? nullptr : found->second;
    }

    Release m_release;
    Table m_permanent;
    Table m_temporary;
    std::vector<std::unique_ptr<Object>> m_ownedTemporary;
};
