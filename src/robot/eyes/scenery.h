// A site as faces that a camera can see: what stands still is made once, what moves is made for each view.
//
// The plan tells where things are and not how high; heights and colours are chosen here by kind. Rooms are
// 2.5 m high and have a ceiling.
#pragma once

#include "robot/eyes/face.h"
#include "robot/eyes/view.h"
#include "robot/site.h"

namespace quorrin {

constexpr double kRoomHeight_m = 2.5;
constexpr double kBoxHeight_m = 0.35;

// Floor, ceiling, walls, furniture, dock and slippery patches.
Faces standingFaces(const Site& site);
// Boxes and people where the view has them; people look at the eye.
void addMovingFaces(Faces& into, const CameraView& view);

// Somebody of 1.75 m, one of a few kinds of clothes by number.
void addPerson(Faces& into, Vec2 place, Vec2 facing, std::size_t number);

}  // namespace quorrin
