#include "host/Cell.h"

#include <cmath>

#include "default_host/internal/unit_cell.h"

double Cell::volume() const {
    for (const UncertainValue& edge : {a, b, c}) {
        if (!(edge.value > 0)) return 0;
    }
    for (const Angle& angle : {alpha, beta, gamma}) {
        if (!(angle.degrees.value > 0 && angle.degrees.value < 180)) return 0;
    }
    const double volume = unit_cell(*this).volume;
    return std::isfinite(volume) && volume > 0 ? volume : 0;
}
