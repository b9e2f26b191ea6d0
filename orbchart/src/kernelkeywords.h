// The keywords of the kernels by which neighbours weigh.
#pragma once

#include "numberedkeywords.h"
#include "orbuni.h"

namespace orbchart {

inline constexpr const XMLCh* allKernels[] = {
    OrbUni::_uniform, OrbUni::_epanechnikov, OrbUni::_biweight, OrbUni::_triweight,
    OrbUni::_tricube, OrbUni::_gaussian,     OrbUni::_cauchy,
};

/// The table of the enumeration of a class.
template <class Wrapper>
inline constexpr auto& kernelsOf = numbered<allKernels, Wrapper::kernel_uniform, Wrapper::kernel_cauchy>.table;

} // namespace orbchart
