#pragma once

#include "forms/FormSheet.h"

namespace tavrene::samples {

/// The forms of the sample folder. The first two look alike and have profiles, the third has none.
PrintedForm PatientQuestionnaire();
PrintedForm StaffSurvey();
PrintedForm DeliveryNote();

/// Nothing at all.
PrintedForm BlankSheet();

}  // namespace tavrene::samples
