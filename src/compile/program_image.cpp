#include "compile/program_image.h"

#include "file/byte_stream.h"

#include <array>
#include <bit>
#include <cstdio>
#include <cstring>

namespace zolt::compile {
namespace {

constexpr std::array<char, 4> kMagic = {'Z', 'B', 'I', 'N'};
// No list of an image can be longer than the analyzer's memory holds; a count
// beyond this is damage, not data, and must not make the reader allocate.
constexpr std::uint32_t kMaxCount = 1u << 20;

class Out {
public:
    void flag(bool b) { w_.Integer(b ? -1 : 0); }
    void i16(std::int16_t n) { w_.Integer(n); }
    void u16(std::uint16_t n) { w_.Integer(static_cast<std::int16_t>(n)); }
    void i32(std::int32_t n) { w_.Long(n); }
    void u32(std::uint32_t n) { w_.Long(static_cast<std::int32_t>(n)); }
    void f32(float n) { w_.Long(std::bit_cast<std::int32_t>(n)); }
    void f64(double n) { w_.Double(n); }
    void str(const std::string& s) { w_.String(s); }
    template <typename T, typename F> void list(const std::vector<T>& items, F each) {
        u32(static_cast<std::uint32_t>(items.size()));
        for (const T& item : items)
            each(item);
    }
    const std::string& bytes() const { return w_.bytes(); }

private:
    file::ByteWriter w_;
};

class In {
public:
    explicit In(std::string_view bytes) : r_(bytes) {}
    bool flag() {
        const std::int16_t word = r_.Integer();
        if (word != 0 && word != -1)
            throw file::FormatError("a flag word is neither 0 nor -1");
        return word == -1;
    }
    std::int16_t i16() { return r_.Integer(); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(r_.Integer()); }
    std::int32_t i32() { return r_.Long(); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(r_.Long()); }
    float f32() { return std::bit_cast<float>(r_.Long()); }
    double f64() { return r_.Double(); }
    std::string str() { return r_.String(); }
    template <typename T, typename F> std::vector<T> list(F each) {
        const std::uint32_t n = u32();
        if (n > kMaxCount || n > r_.remaining())
            throw file::FormatError("a list count runs past the end of the image");
        std::vector<T> items;
        items.reserve(n);
        for (std::uint32_t i = 0; i < n; ++i)
            items.push_back(each());
        return items;
    }
    std::size_t remaining() const { return r_.remaining(); }

private:
    file::ByteReader r_;
};

void writeNetlist(Out& o, const ImageNetlist& n) {
    o.str(n.name);
    o.flag(n.manual);
    o.list(n.nets,
           [&](const TestPointSet& net) { o.list(net, [&](std::uint16_t tp) { o.u16(tp); }); });
    o.list(n.connectors, [&](const ImageConnector& c) {
        o.str(c.name);
        o.i32(c.pins);
        o.i32(c.switches);
        o.i32(c.lamp1);
        o.i32(c.lamp2);
    });
    o.list(n.components, [&](const ImageComponent& c) {
        o.str(c.kind);
        o.i32(c.number);
        o.i32(c.netA);
        o.i32(c.netB);
        o.i32(c.parameter);
    });
    o.list(n.switches, [&](const ImageSwitch& s) {
        o.str(s.connector);
        o.str(s.pin);
        o.str(s.commons);
        o.i16(s.ordinal);
        o.i32(s.testPoint);
        o.i32(s.commonTestPoint);
    });
    o.list(n.groups, [&](const ImageGroupMember& g) {
        o.str(g.group);
        o.str(g.connector);
        o.str(g.pin);
        o.str(g.baseColor);
        o.str(g.stripeColor);
        o.i32(g.testPoint);
    });
    o.list(n.reversibles, [&](const ImageReversible& r) {
        o.i32(r.number);
        o.i32(r.testPoint1);
        o.i32(r.testPoint2);
    });
    o.list(n.codes, [&](const ImageCode& c) {
        o.str(c.command);
        o.str(c.parameter);
    });
    o.list(n.points, [&](const ImagePoint& p) {
        o.u16(p.testPoint);
        o.str(p.connector);
        o.str(p.pin);
    });
    o.list(n.wires, [&](const ImageWire& w) {
        o.str(w.name);
        o.str(w.baseColor);
        o.str(w.stripeColor);
        o.i32(w.net);
        o.i32(w.end1);
        o.i32(w.end2);
    });
}

ImageNetlist readNetlist(In& in, std::uint16_t version) {
    ImageNetlist n;
    n.name = in.str();
    n.manual = in.flag();
    n.nets =
        in.list<TestPointSet>([&] { return in.list<std::uint16_t>([&] { return in.u16(); }); });
    n.connectors = in.list<ImageConnector>([&] {
        ImageConnector c;
        c.name = in.str();
        c.pins = in.i32();
        c.switches = in.i32();
        c.lamp1 = in.i32();
        c.lamp2 = in.i32();
        return c;
    });
    n.components = in.list<ImageComponent>([&] {
        ImageComponent c;
        c.kind = in.str();
        c.number = in.i32();
        c.netA = in.i32();
        c.netB = in.i32();
        c.parameter = in.i32();
        return c;
    });
    n.switches = in.list<ImageSwitch>([&] {
        ImageSwitch s;
        s.connector = in.str();
        s.pin = in.str();
        s.commons = in.str();
        s.ordinal = in.i16();
        if (version >= 2) {
            s.testPoint = in.i32();
            s.commonTestPoint = in.i32();
        }
        return s;
    });
    n.groups = in.list<ImageGroupMember>([&] {
        ImageGroupMember g;
        g.group = in.str();
        g.connector = in.str();
        g.pin = in.str();
        g.baseColor = in.str();
        g.stripeColor = in.str();
        g.testPoint = in.i32();
        return g;
    });
    n.reversibles = in.list<ImageReversible>([&] {
        ImageReversible r;
        r.number = in.i32();
        r.testPoint1 = in.i32();
        r.testPoint2 = in.i32();
        return r;
    });
    n.codes = in.list<ImageCode>([&] {
        ImageCode c;
        c.command = in.str();
        c.parameter = in.str();
        return c;
    });
    if (version < 2)
        return n;
    n.points = in.list<ImagePoint>([&] {
        ImagePoint p;
        p.testPoint = in.u16();
        p.connector = in.str();
        p.pin = in.str();
        return p;
    });
    n.wires = in.list<ImageWire>([&] {
        ImageWire w;
        w.name = in.str();
        w.baseColor = in.str();
        w.stripeColor = in.str();
        w.net = in.i32();
        w.end1 = in.i32();
        w.end2 = in.i32();
        return w;
    });
    return n;
}

std::string payloadOf(const ProgramImage& image) {
    Out o;
    const ImageHeader& h = image.header;
    o.str(h.programId);
    o.str(h.programName);
    o.flag(h.optionFlag2);
    o.flag(h.optionFlag18);
    o.flag(h.seqBuild);
    o.i32(h.warningMask);
    o.i32(h.logMask);
    o.f64(h.dwellTime);
    o.i32(h.switchType);
    o.u16(h.fixturePoints);
    o.i16(h.optionValue5);
    o.list(image.commands, [&](const ImageCommand& c) {
        o.str(c.name);
        o.i32(c.type);
        o.i32(c.low);
        o.i32(c.high);
        o.str(c.description);
    });
    o.list(image.sequence, [&](const ImageSequenceLine& l) {
        o.str(l.command);
        o.str(l.parameter);
    });
    o.list(image.macros, [&](const ImageMacroLine& l) {
        o.str(l.macro);
        o.str(l.command);
        o.str(l.parameter);
    });
    o.list(image.messages, [&](const ImageMessage& m) {
        o.str(m.id);
        o.str(m.text);
    });
    o.list(image.labels, [&](const ImageLabelField& l) {
        o.i16(l.label);
        o.i16(l.id);
        o.str(l.text);
    });
    o.list(image.testParameters, [&](const ImageTestParameter& t) {
        o.f32(t.voltage);
        o.f32(t.secondValue);
        o.f32(t.threshold);
        o.f32(t.current);
    });
    o.list(image.devices, [&](const ImageDevice& d) {
        o.str(d.kind);
        o.str(d.side1);
        o.str(d.side2);
        o.str(d.description);
    });
    o.list(image.netlists, [&](const ImageNetlist& n) { writeNetlist(o, n); });
    return o.bytes();
}

ProgramImage readPayload(In& in, std::uint16_t version) {
    ProgramImage image;
    ImageHeader& h = image.header;
    h.programId = in.str();
    h.programName = in.str();
    h.optionFlag2 = in.flag();
    h.optionFlag18 = in.flag();
    h.seqBuild = in.flag();
    h.warningMask = in.i32();
    h.logMask = in.i32();
    h.dwellTime = in.f64();
    h.switchType = in.i32();
    h.fixturePoints = in.u16();
    h.optionValue5 = in.i16();
    image.commands = in.list<ImageCommand>([&] {
        ImageCommand c;
        c.name = in.str();
        c.type = in.i32();
        c.low = in.i32();
        c.high = in.i32();
        c.description = in.str();
        return c;
    });
    image.sequence = in.list<ImageSequenceLine>([&] {
        ImageSequenceLine l;
        l.command = in.str();
        l.parameter = in.str();
        return l;
    });
    image.macros = in.list<ImageMacroLine>([&] {
        ImageMacroLine l;
        l.macro = in.str();
        l.command = in.str();
        l.parameter = in.str();
        return l;
    });
    image.messages = in.list<ImageMessage>([&] {
        ImageMessage m;
        m.id = in.str();
        m.text = in.str();
        return m;
    });
    image.labels = in.list<ImageLabelField>([&] {
        ImageLabelField l;
        l.label = in.i16();
        l.id = in.i16();
        l.text = in.str();
        return l;
    });
    image.testParameters = in.list<ImageTestParameter>([&] {
        ImageTestParameter t;
        t.voltage = in.f32();
        t.secondValue = in.f32();
        t.threshold = in.f32();
        t.current = in.f32();
        return t;
    });
    image.devices = in.list<ImageDevice>([&] {
        ImageDevice d;
        d.kind = in.str();
        d.side1 = in.str();
        d.side2 = in.str();
        d.description = in.str();
        return d;
    });
    image.netlists = in.list<ImageNetlist>([&] { return readNetlist(in, version); });
    return image;
}

std::uint32_t readU32(std::span<const std::uint8_t> b, std::size_t at) {
    return static_cast<std::uint32_t>(b[at]) | static_cast<std::uint32_t>(b[at + 1]) << 8 |
           static_cast<std::uint32_t>(b[at + 2]) << 16 |
           static_cast<std::uint32_t>(b[at + 3]) << 24;
}

void appendU32(std::vector<std::uint8_t>& out, std::uint32_t n) {
    for (int shift = 0; shift < 32; shift += 8)
        out.push_back(static_cast<std::uint8_t>(n >> shift));
}

} // namespace

std::uint32_t Crc32(std::span<const std::uint8_t> bytes) {
    static const std::array<std::uint32_t, 256> table = [] {
        std::array<std::uint32_t, 256> t{};
        for (std::uint32_t i = 0; i < 256; ++i) {
            std::uint32_t c = i;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[i] = c;
        }
        return t;
    }();
    std::uint32_t crc = 0xFFFFFFFFu;
    for (std::uint8_t b : bytes)
        crc = table[(crc ^ b) & 0xFFu] ^ (crc >> 8);
    return crc ^ 0xFFFFFFFFu;
}

std::string PayloadCrcText(std::span<const std::uint8_t> imageBytes) {
    if (imageBytes.size() < kImageHeaderSize)
        return {};
    char text[9];
    std::snprintf(text, sizeof text, "%08X",
                  static_cast<unsigned>(Crc32(imageBytes.subspan(kImageHeaderSize))));
    return text;
}

std::vector<std::uint8_t> WriteImage(const ProgramImage& image) {
    const std::string payload = payloadOf(image);
    std::vector<std::uint8_t> out(kMagic.begin(), kMagic.end());
    out.reserve(kImageHeaderSize + payload.size());
    out.push_back(static_cast<std::uint8_t>(kImageVersion & 0xFF));
    out.push_back(static_cast<std::uint8_t>(kImageVersion >> 8));
    out.push_back(0);
    out.push_back(0);
    const auto* data = reinterpret_cast<const std::uint8_t*>(payload.data());
    const std::span<const std::uint8_t> body(data, payload.size());
    appendU32(out, static_cast<std::uint32_t>(payload.size()));
    appendU32(out, Crc32(body));
    out.insert(out.end(), body.begin(), body.end());
    return out;
}

ImageReadResult ReadImage(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < kImageHeaderSize)
        return {std::nullopt, "the file is shorter than an image header"};
    if (std::memcmp(bytes.data(), kMagic.data(), kMagic.size()) != 0)
        return {std::nullopt, "the file is not a compiled program (no ZBIN mark)"};
    const std::uint16_t version = static_cast<std::uint16_t>(bytes[4] | bytes[5] << 8);
    if (version < kOldestImageVersion || version > kImageVersion)
        return {std::nullopt, "image version " + std::to_string(version) + " is not known (" +
                                  std::to_string(kOldestImageVersion) + " to " +
                                  std::to_string(kImageVersion) + " are)"};
    if (bytes[6] != 0 || bytes[7] != 0)
        return {std::nullopt, "the reserved header bytes are not zero"};
    const std::uint32_t size = readU32(bytes, 8);
    if (size != bytes.size() - kImageHeaderSize)
        return {std::nullopt, "the payload is " + std::to_string(bytes.size() - kImageHeaderSize) +
                                  " bytes, the header says " + std::to_string(size)};
    const std::span<const std::uint8_t> body = bytes.subspan(kImageHeaderSize);
    if (Crc32(body) != readU32(bytes, 12))
        return {std::nullopt, "the checksum does not match: the image is damaged"};
    try {
        In in(std::string_view(reinterpret_cast<const char*>(body.data()), body.size()));
        ProgramImage image = readPayload(in, version);
        if (in.remaining() != 0)
            return {std::nullopt, "bytes follow the last netlist"};
        return {std::move(image), {}, version};
    } catch (const file::FormatError& e) {
        return {std::nullopt, e.what()};
    }
}

} // namespace zolt::compile
