// The keywords of the distributions.
#pragma once

#include "numberedkeywords.h"
#include "orbscale.h"
#include "orbuni.h"

namespace orbchart {

inline constexpr const XMLCh* allDistributions[] = {
    OrbUni::_uniform,
    OrbUni::_normal,
    OrbUni::_t,
    OrbUni::_f,
    OrbUni::_chisquare,
    OrbUni::_gamma,
    OrbUni::_beta,
    OrbUni::_exponential,
    OrbUni::_logistic,
    OrbUni::_studentizedrange,
    OrbScale::_UTF_distribution_weibull,
    OrbUni::_poisson,
    OrbScale::_UTF_distribution_binomialnegative,
    OrbScale::_UTF_distribution_gaussianinverse,
};

/// The table of the enumeration of a class.
template <class Wrapper>
inline constexpr auto& distributionsOf =
    numbered<allDistributions, Wrapper::distribution_uniform, Wrapper::distribution_gaussianinverse>.table;

} // namespace orbchart
