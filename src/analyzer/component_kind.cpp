#include "analyzer/component_kind.h"

namespace zolt::analyzer {
namespace {

struct KindWords {
    std::string_view kind;
    std::string_view word;
    std::string_view letter;
};

constexpr KindWords kKinds[] = {
    {"DIOM", "DIODE", "D"},    {"RESM", "RESISTOR", "R"}, {"KEL", "RESISTOR", "R"},
    {"KELG", "RESISTOR", "R"}, {"CAP", "CAPACITOR", "C"}, {"PCAP", "CAPACITOR", "C"},
    {"UNET", "NETWORK", "U"},
};

const KindWords* Find(std::string_view kind) {
    for (const auto& k : kKinds)
        if (k.kind == kind)
            return &k;
    return nullptr;
}

} // namespace

std::string ComponentWord(std::string_view kind) {
    const auto* k = Find(kind);
    return std::string(k ? k->word : kind);
}

std::string ComponentName(std::string_view kind, int number) {
    const auto* k = Find(kind);
    return std::string(k ? k->letter : kind) + std::to_string(number);
}

bool IsPolarised(std::string_view kind) {
    return kind == "DIOM" || kind == "PCAP";
}

bool IsResistive(std::string_view kind) {
    return kind == "RESM" || kind == "KEL" || kind == "KELG";
}

} // namespace zolt::analyzer
