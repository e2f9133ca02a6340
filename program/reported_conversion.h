// A conversion made for a report.
#pragma once

#include <string>
#include <vector>

#include "program/conversion.h"
#include "program/inspection.h"
#include "views/picture.h"
#include "views/report_page.h"

namespace standin {

// Each view of what there is to see.
views::PicturedState picturesOf(const views::PosedRig& rig, views::Language language,
                                views::Marks marks = views::Marks::Problems);

// Never throws Trouble: what went wrong is told in the report.
views::ReportedConversion reportedConversion(const InspectedObject& file, const ConversionOptions& options,
                                             views::Language language);

}  // namespace standin
