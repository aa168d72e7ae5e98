#pragma once

namespace folivar {

// Angles, computed here and not by the system's mathematics library: that one differs from system
// to system in the last bits, and the tangent of 90 degrees shows them in the file.

// In degrees times 3.14159265358979 / 180, rounded to single.
float RadiansFromDegrees(float degrees);

struct SineCosine {
  double sine;
  double cosine;
};

// Both to within a few units of the last place of a double, at any size of the angle. What is not
// finite gives what is not a number.
SineCosine SineCosineOf(float radians);

}  // namespace folivar
