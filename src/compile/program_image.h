#pragma once

// The compiled program as the analyzer runs it, and the reader and writer of its
// file, `<base>.bin`. The layout is in docs/image-format.md; this header is all a
// reader of images needs.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zolt::compile {

// The version WriteImage writes; ReadImage also reads every earlier one.
inline constexpr std::uint16_t kImageVersion = 2;
inline constexpr std::uint16_t kOldestImageVersion = 1;
inline constexpr std::size_t kImageHeaderSize = 16;

struct ImageHeader {
    std::string programId;
    std::string programName;
    bool optionFlag2 = false;
    bool optionFlag18 = false;
    bool seqBuild = false;
    std::int32_t warningMask = 0;
    std::int32_t logMask = 0;
    double dwellTime = 0.0;
    std::int32_t switchType = 0;
    std::uint16_t fixturePoints = 0;
    std::int16_t optionValue5 = 0;
    bool operator==(const ImageHeader&) const = default;
};

struct ImageCommand {
    std::string name;
    std::int32_t type = 0;
    std::int32_t low = 0;
    std::int32_t high = 0;
    std::string description;
    bool operator==(const ImageCommand&) const = default;
};

struct ImageSequenceLine {
    std::string command;
    std::string parameter;
    bool operator==(const ImageSequenceLine&) const = default;
};

struct ImageMacroLine {
    std::string macro;
    std::string command;
    std::string parameter;
    bool operator==(const ImageMacroLine&) const = default;
};

struct ImageMessage {
    std::string id;
    std::string text;
    bool operator==(const ImageMessage&) const = default;
};

// A variable field of a label file: `label` 1 or 2, `id` in 80..99 or 100..119.
struct ImageLabelField {
    std::int16_t label = 1;
    std::int16_t id = 0;
    std::string text;
    bool operator==(const ImageLabelField&) const = default;
};

struct ImageTestParameter {
    float voltage = 0;
    float secondValue = 0;
    float threshold = 0;
    float current = 0;
    bool operator==(const ImageTestParameter&) const = default;
};

struct ImageDevice {
    std::string kind;
    std::string side1;
    std::string side2;
    std::string description;
    bool operator==(const ImageDevice&) const = default;
};

// Test point numbers are board * 128 + point, 0 to 2047.
using TestPointSet = std::vector<std::uint16_t>;

struct ImageConnector {
    std::string name;
    std::int32_t pins = 0;
    std::int32_t switches = 0;
    std::int32_t lamp1 = -1;
    std::int32_t lamp2 = -1;
    bool operator==(const ImageConnector&) const = default;
};

// A device between two nets; a net index of -1 is a side on no tested net.
struct ImageComponent {
    std::string kind;
    std::int32_t number = 0;
    std::int32_t netA = -1;
    std::int32_t netB = -1;
    std::int32_t parameter = 0;
    bool operator==(const ImageComponent&) const = default;
};

// A switch between its own test point and its common's; -1 where either has none.
struct ImageSwitch {
    std::string connector;
    std::string pin;
    std::string commons;
    std::int16_t ordinal = 0;
    std::int32_t testPoint = -1;
    std::int32_t commonTestPoint = -1;
    bool operator==(const ImageSwitch&) const = default;
};

// The connector pin (or switch point) the fixture wires to a test point.
struct ImagePoint {
    std::uint16_t testPoint = 0;
    std::string connector;
    std::string pin;
    bool operator==(const ImagePoint&) const = default;
};

// A wire with its colour names (empty for none), its net (-1 when it reaches
// none) and the test points of the pins it lands on (-1 for an end on a splice,
// a component or nothing), so that an open can be named by its wire.
struct ImageWire {
    std::string name;
    std::string baseColor;
    std::string stripeColor;
    std::int32_t net = -1;
    std::int32_t end1 = -1;
    std::int32_t end2 = -1;
    bool operator==(const ImageWire&) const = default;
};

// A group member; testPoint -1 when the pin is on none.
struct ImageGroupMember {
    std::string group;
    std::string connector;
    std::string pin;
    std::string baseColor;
    std::string stripeColor;
    std::int32_t testPoint = -1;
    bool operator==(const ImageGroupMember&) const = default;
};

struct ImageReversible {
    std::int32_t number = 0;
    std::int32_t testPoint1 = -1;
    std::int32_t testPoint2 = -1;
    bool operator==(const ImageReversible&) const = default;
};

struct ImageCode {
    std::string command;
    std::string parameter;
    bool operator==(const ImageCode&) const = default;
};

struct ImageNetlist {
    std::string name;
    bool manual = false; // a netlist of codes only
    std::vector<TestPointSet> nets;
    std::vector<ImageConnector> connectors;
    std::vector<ImageComponent> components;
    std::vector<ImageSwitch> switches;
    std::vector<ImageGroupMember> groups;
    std::vector<ImageReversible> reversibles;
    std::vector<ImageCode> codes;
    std::vector<ImagePoint> points; // ascending test points
    std::vector<ImageWire> wires;   // Wire table order
    bool operator==(const ImageNetlist&) const = default;
};

struct ProgramImage {
    ImageHeader header;
    std::vector<ImageCommand> commands;
    std::vector<ImageSequenceLine> sequence;
    std::vector<ImageMacroLine> macros;
    std::vector<ImageMessage> messages;
    std::vector<ImageLabelField> labels;
    std::vector<ImageTestParameter> testParameters;
    std::vector<ImageDevice> devices;
    std::vector<ImageNetlist> netlists;
    bool operator==(const ProgramImage&) const = default;
};

// The file's bytes: header, then the payload it checks.
std::vector<std::uint8_t> WriteImage(const ProgramImage& image);

struct ImageReadResult {
    std::optional<ProgramImage> image;
    std::string error;         // why the bytes are no image; empty on success
    std::uint16_t version = 0; // the format version the bytes were written in
};
// Never trusts the bytes: a short, damaged or foreign file gives an error.
ImageReadResult ReadImage(std::span<const std::uint8_t> bytes);

// CRC-32 as zip and PNG use it (reflected, polynomial 0xEDB88320).
std::uint32_t Crc32(std::span<const std::uint8_t> bytes);

// The checksum of an image's payload (what its header holds), as eight hex
// digits ("CBF43926"): the compile log and the analyzer print it so. Empty for
// bytes shorter than a header.
std::string PayloadCrcText(std::span<const std::uint8_t> imageBytes);

} // namespace zolt::compile
