// The keywords of the summaries: one list, which several enumerations number each in its own way.
#pragma once

#include "numberedkeywords.h"
#include "orbsummarystatistic.h"
#include "orbuni.h"

namespace orbchart {

inline constexpr const XMLCh* allSummaries[] = {
    OrbUni::_mean,
    OrbUni::_sum,
    OrbUni::_midRange,
    OrbUni::_percent,
    OrbSummaryStatistic::VSS_percentCount,
    OrbUni::_fraction,
    OrbSummaryStatistic::VSS_fractionCount,
    OrbUni::_range,
    OrbUni::_confidenceIntervalOfMean,
    OrbUni::_confidenceIntervalIndividual,
    OrbUni::_count,
    OrbSummaryStatistic::VSS_confidenceIntervalOfCount,
    OrbSummaryStatistic::VSS_confidenceIntervalOfPercentCount,
    OrbSummaryStatistic::VSS_confidenceIntervalOfFractionCount,
    OrbSummaryStatistic::VSS_rowCount,
    OrbUni::_stddev,
    OrbUni::_stderr,
    OrbUni::_median,
    OrbUni::_max,
    OrbUni::_min,
    OrbUni::_variance,
    OrbUni::_cumulativeSum,
    OrbSummaryStatistic::VSS_cumulativePercent,
    OrbSummaryStatistic::VSS_cumulativePercentCount,
    OrbSummaryStatistic::VSS_cumulativeFraction,
    OrbSummaryStatistic::VSS_cumulativeFractionCount,
    OrbSummaryStatistic::VSS_cumulativeCount,
    OrbUni::_first,
    OrbSummaryStatistic::VSS_last,
    OrbSummaryStatistic::VSS_percentile,
    OrbUni::_mode,
    OrbSummaryStatistic::VSS_countTrue,
    OrbSummaryStatistic::VSS_percentTrue,
    OrbSummaryStatistic::VSS_fractionTrue,
    OrbSummaryStatistic::VSS_kurtosis,
    OrbSummaryStatistic::VSS_seKurtosis,
    OrbSummaryStatistic::VSS_skewness,
    OrbSummaryStatistic::VSS_seSkewness,
};

/// The table of an enumeration that takes the list from its beginning, by its first and its last number.
template <auto first, auto last> inline constexpr auto& numberedSummaries = numbered<allSummaries, first, last>.table;

} // namespace orbchart
