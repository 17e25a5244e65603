#include "settings/setting_fields.h"

#include "core/value.h"
#include "fixture/test_point.h"

#include <cmath>
#include <cstdio>
#include <limits>

namespace zolt::settings {
namespace {

struct NumberRule {
    const char* notNumber;
    double low;
    double high;
    const char* outOfRange;
    int decimals;
};

NumberRule ruleOf(Field field) {
    switch (field) {
    case Field::DwellTime:
        return {"Enter Positive Real Number", 0.1, 5.0, "Enter Value Between 0.1 - 5.0", 1};
    case Field::TestVoltage:
        return {"Enter Real Number", 2, 12, "Voltage Value Must Be Between 2 and 12", 2};
    case Field::TestCurrent:
        return {"Enter Real Number", 0.04, 6, "Current Value Must Be Between 0.04 and 6", 2};
    case Field::Threshold:
        return {"Enter Real Number", 0, 10, "Voltage Value Must Be Between 0 and 10", 0};
    case Field::TestResistance:
        return {"Enter Real Number", 1000, 5000, "Resistance Value Must Be Between 1000 and 5000",
                0};
    case Field::CompLogMask:
        return {"Enter Whole Number", 0, std::numeric_limits<std::int32_t>::max(),
                "Enter Whole Number", 0};
    case Field::StartTestPoint:
        break;
    }
    return {"", 0, 0, "", 0};
}

FieldCheck refused(const char* message) {
    return {false, {}, message};
}

} // namespace

std::string FormatField(Field field, double value) {
    const int decimals = ruleOf(field).decimals;
    // Halves round away from zero, as the format of a number always has here.
    const double scale = std::pow(10.0, decimals);
    const double rounded = std::round(value * scale) / scale;
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, rounded == 0.0 ? 0.0 : rounded);
    return text;
}

bool InRange(Field field, double value) {
    const NumberRule rule = ruleOf(field);
    return value >= rule.low && value <= rule.high;
}

std::string RangeMessage(Field field) {
    return ruleOf(field).outOfRange;
}

FieldCheck CheckField(Field field, const std::string& typed) {
    if (field == Field::StartTestPoint) {
        const std::string point = GetTestPoint(vb::Trim(typed));
        if (point.empty() || !CheckTestPoint(point))
            return refused("Invalid Test Pin Format or Number");
        return {true, {point, 0.0}, {}};
    }
    const NumberRule rule = ruleOf(field);
    if (!vb::IsNumeric(std::string_view(typed)))
        return refused(rule.notNumber);
    const double n = vb::Val(vb::Trim(typed));
    if (field == Field::DwellTime && n <= 0)
        return refused(rule.notNumber);
    if (field == Field::CompLogMask && n != std::floor(n))
        return refused(rule.notNumber);
    if (!InRange(field, n))
        return refused(rule.outOfRange);
    // The value is the one the field shows, so that what is stored reads as shown.
    const std::string shown = FormatField(field, n);
    return {true, {shown, vb::Val(shown)}, {}};
}

double ThresholdToResistance(double threshold, double current) {
    return current > 0 ? threshold / current * 1000.0 : 0.0;
}

double ResistanceToThreshold(double resistance, double current) {
    return resistance * current / 1000.0;
}

} // namespace zolt::settings
