#pragma once

#include "core/number_rule.h"
#include "outgoing/object_form.h"
#include "platform/clock.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// Nothing where the tail is too long. The numbers in the fields can be read.
std::optional<std::string> ObjectReportText(const ObjectForm::Fields& fields, const UtcTime& utc);

inline constexpr std::array<std::string_view, 2> kObjectStates = {"Active", "Cancelled"};

using ObjectBox = NumberBox<ObjectForm::Fields>;
extern const std::array<ObjectBox, 3> kObjectBoxes;

void frmObject_Load(MainWindow& main);
void frmObject_Send(MainWindow& main); // Closes the dialog, unless something is missing or wrong.
void frmObject_PinPoint(MainWindow& main);
void frmObject_Minimize(MainWindow& main); // The dialog alone, until the command brings it back.

void mnuSendObject_Click(MainWindow& main); // A dialog that is visible already keeps what was typed.

} // namespace ruvenmark
