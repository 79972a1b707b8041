#include "shapeops/transforms.h"
#include "document/refresh.h"

namespace velmora {
void PositivaX(double) {}
void PositivaY(double) {}
void Positivarfrma() {}
void ScaleToUnit() {}
void ScaleXY(double, double, std::int16_t) {}
void MirrorHorDat() {}
void MirrorVerDat() {}
void InvertDat() {}
void Apply_Precision() {}
} // namespace velmora
