#pragma once

#include <string>

namespace zolt::settings {

// The typed fields of the File Settings dialog.
enum class Field {
    DwellTime,
    StartTestPoint,
    TestVoltage,
    TestCurrent,
    Threshold,
    TestResistance,
    CompLogMask,
};

// A field's text once it passed its check: the text as the field shows it
// ("0.5" for ".5", "3-007" for "3-7") and, for number fields, the value of that
// text (2.55 typed into a "#0.0" field is 2.6).
struct FieldValue {
    std::string text;
    double number = 0.0;
};

// What the check of a field says of a typed text: its value, or the message
// the field shows when it loses the focus.
struct FieldCheck {
    bool ok = false;
    FieldValue value;
    std::string message;
};

FieldCheck CheckField(Field field, const std::string& typed);
// Whether a number field's range holds `value`, and what the field says when not.
bool InRange(Field field, double value);
std::string RangeMessage(Field field);
// A number in a field's format: "#0.0" for the dwell time, "##0.00" for
// voltage and current, "##0" for threshold and resistance.
std::string FormatField(Field field, double value);

// The threshold as the resistance it stands for at a test current in mA, and back.
double ThresholdToResistance(double threshold, double current);
double ResistanceToThreshold(double resistance, double current);

} // namespace zolt::settings
