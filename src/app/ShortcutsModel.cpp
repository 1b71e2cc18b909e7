#include "app/ShortcutsModel.h"

#include <utility>

namespace quorvel {

void ShortcutsModel::setState(States state)
{
    published = state;
    stateChanged.emit(state);
}

Subscription ShortcutsModel::observeState(Observer observer)
{
    return stateChanged.observe(std::move(observer));
}

} // namespace quorvel
