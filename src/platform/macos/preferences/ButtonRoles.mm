#include "platform/macos/preferences/ButtonRoles.h"

namespace quorvel::macos {

void giveRole(NSButton* button, ButtonRole role)
{
    switch (role) {
    case ButtonRole::normal:
        [button setKeyEquivalent:@""];
        break;
    case ButtonRole::confirm:
        [button setKeyEquivalent:@"\r"];
        break;
    case ButtonRole::cancel:
        [button setKeyEquivalent:@"\033"];
        break;
    case ButtonRole::destructive:
        [button setKeyEquivalent:@""];
        [button setHasDestructiveAction:YES];
        break;
    }
}

} // namespace quorvel::macos
