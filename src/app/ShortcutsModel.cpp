#include "app/ShortcutsModel.h"

#include <utility>

namespace quorvel {

void ShortcutsModel::setState(States state)
{
    published = state;
    const auto current = *observers; // an observer may come or go while they are being told
    for (const auto& [id, observer] : current) {
        if (observers->contains(id)) {
            observer(state);
        }
    }
}

Subscription ShortcutsModel::observeState(Observer observer)
{
    const auto id = nextId++;
    observers->emplace(id, std::move(observer));
    return Subscription([observers = std::weak_ptr(observers), id] {
        if (const auto current = observers.lock()) {
            current->erase(id);
        }
    });
}

} // namespace quorvel
