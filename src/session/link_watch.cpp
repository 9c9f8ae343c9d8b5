#include "session/link_watch.h"

#include <string>

namespace quorrin {

bool countSilence(LinkValues& link, Label& lblCom) {
    if (link.motLinkUp) ++link.motSilentTicks;
    if (link.tiLinkUp) ++link.tiSilentTicks;
    lblCom.setCaption(std::to_string(link.tiSilentTicks.value()));
    return link.motSilentTicks > kSilentTicksAllowed || link.tiSilentTicks > kSilentTicksAllowed;
}

}  // namespace quorrin
