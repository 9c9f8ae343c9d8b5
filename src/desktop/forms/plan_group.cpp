#include "desktop/forms/plan_group.h"

#include "desktop/binding/bind.h"
#include "desktop/widgets/map_scroller.h"

namespace quorrin {

Group* planGroup(Placing& place, MapControls& map) {
    Group* const made = group("fraMapDisplay", column({new MapScroller(place.factory(), map, place.acts())}));
    made->putBesideTitle(place.icon("RoomPic", IconName::floorPlan, made->fontMetrics().height()));
    place.factory().dress(*made, map.fraMapDisplay);
    bind(*made, map.fraMapDisplay, place.acts());
    return made;
}

}  // namespace quorrin
