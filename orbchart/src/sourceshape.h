// What the classes of sources share without a common base.
#pragma once

#include "family.h"
#include "keyword.h"
#include "orbaggregate.h"
#include "orbdatareduction.h"
#include "orbfilter.h"

namespace orbchart {

/// The attribute `missing`, for the enumeration of each source.
template <class Source>
inline constexpr Keywords missingOf{Source::_UTF_missing,
                                    Source::missing_unset,
                                    {
                                        {Source::missing_pairwise, Source::_UTF_missing_pairwise},
                                        {Source::missing_listwise, Source::_UTF_missing_listwise},
                                    }};

/// The families of a source that has no others.
using SourceFamilies = ChildFamilies<FamilyList<OrbAggregate, OrbFilter, OrbDataReduction>>;
using AfterSourceAggregates = FamilyList<OrbFilter>;

} // namespace orbchart
