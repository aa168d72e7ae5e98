#pragma once

#include <algorithm>

// Points; y grows upwards.
struct Box {
  float left;
  float bottom;
  float width;
  float height;

  float Top() const { return bottom + height; }

  // Outwards for a negative margin.
  Box Inset(float margin) const {
    return {left + margin, bottom + margin, width - 2 * margin, height - 2 * margin};
  }
  Box Moved(float right, float up) const { return {left + right, bottom + up, width, height}; }

  // The largest box of this shape, in the middle of the room.
  Box FittedInto(const Box& room) const {
    const float scale = std::min(room.width / width, room.height / height);
    const float fittedWidth = width * scale;
    const float fittedHeight = height * scale;
    return {room.left + (room.width - fittedWidth) / 2,
            room.bottom + (room.height - fittedHeight) / 2, fittedWidth, fittedHeight};
  }
};
