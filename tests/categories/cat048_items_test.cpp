// CAT048's own items: decoding quirks, encode/decode round trips, the texts
// and their buffers, and the structured decode through the item dispatch.
#include <gtest/gtest.h>

#include <cstring>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "kovrel/cat048.h"
#include "kovrel/datarecord.h"
#include "kovrel/enums.h"
#include "support/log_capture.h"
#include "support/served.h"

using kovrel_test::Octets;

namespace {

using Producer = void (*)(char *, size_t, const AstDataItem *);

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

// Decodes into a structure filled with garbage first.
template <typename T>
T decoded(void (*decode)(T *, const AstDataItem *), const AstDataItem &item) {
    T out;
    std::memset(&out, 0xA5, sizeof out);
    decode(&out, &item);
    return out;
}

template <typename T>
T decoded(void (*decode)(T *, const AstDataItem *), const Octets &o, AstItemId id) {
    return decoded(decode, span(o, id));
}

// Text written into `size` octets followed by canaries; fails on a write past
// the buffer or a text that is not terminated inside it.
std::string text_at(Producer fn, const AstDataItem &item, size_t size) {
    std::vector<char> mem(size + 16, '\x5A');
    fn(mem.data(), size, &item);
    EXPECT_EQ(std::string(mem.begin() + size, mem.end()), std::string(16, '\x5A')) << "wrote past " << size;
    const size_t len = strnlen(mem.data(), size);
    EXPECT_TRUE(size == 0 || len < size) << "not terminated, buffer size " << size;
    return std::string(mem.data(), len < size ? len : 0);
}

// The full text, after checking the buffer sizes 0, 1 and one short of it.
std::string text(Producer fn, const AstDataItem &item) {
    const std::string full = text_at(fn, item, 1 << 16);
    EXPECT_EQ(text_at(fn, item, 0), "");
    EXPECT_EQ(text_at(fn, item, 1), "");
    if (!full.empty()) {
        EXPECT_EQ(text_at(fn, item, full.size()), full.substr(0, full.size() - 1));
    }
    return full;
}

// Encodes into a 16-octet buffer; a failed encode must leave it untouched.
template <typename T>
Octets encoded(void (*encode)(AstDataItem *, uint8_t *, size_t, const T *), const T &in, size_t size = 16) {
    Octets buf(16, 0xEE);
    AstDataItem out{};
    encode(&out, buf.data(), size, &in);
    EXPECT_EQ(out.data, buf.data());
    EXPECT_EQ(out.id, 0u);
    if (out.valid == 1) return Octets(buf.begin(), buf.begin() + static_cast<long>(out.length));
    EXPECT_EQ(out.length, 0u);
    EXPECT_EQ(buf, Octets(16, 0xEE)) << "a failed encode wrote";
    return {};
}

// A plot report holding every own item (and I048/010).
const Octets kPlot = {0xB3, 0x0B, 0xCB, 0xA0,                    // FSPEC
                      0x19, 0x01,                                // 010
                      0xA9, 0x9A,                                // 020
                      0x01, 0x00, 0x40, 0x00,                    // 040
                      0xE0, 0x40, 0x05, 0xF6,                    // 130: SRL, SRR, SAM
                      0xFF, 0x80, 0x00, 0x80,                    // 042
                      0x41, 0xFE,                                // 170 with extension
                      0x80, 0x01, 0x04, 0x10,                    // 210
                      0x03, 0x05, 0x08,                          // 030
                      0x3F, 0xFF,                                // 110
                      0x24, 0xA5,                                // 230
                      0x30, 0x80, 0x00, 0x34, 0xAB, 0xCD, 0xEF,  // 260
                      0xE1, 0x23};                               // 050

}  // namespace

// Every item of the plot through the dispatch: summary, capabilities, encode
// back (helper); then for the own items, structured decode into storage one
// octet short writes nothing, texts fit their buffers and are empty for spans
// of another identifier or not valid.
TEST(Cat048Items, ServedThroughTheDispatch) {
    AstDataRecord r;
    ast_datarecord_decode(&r, kPlot.data(), kPlot.size(), 48, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ASSERT_EQ(r.length, kPlot.size());
    const uint32_t all = AST_DATAITEM_CAP_DECODE | AST_DATAITEM_CAP_SUMMARY | AST_DATAITEM_CAP_DETAIL;
    const uint32_t enc = all | AST_DATAITEM_CAP_ENCODE;
    const std::vector<kovrel_test::Served> items = {
        {48010, "SAC:025 SIC:001", enc, sizeof(AstDataSourceIdentifier)},
        {48020, "TYPE:ROLL_CALL CHN2 TST ME MI", enc, sizeof(AstItem048_020)},
        {48040, "RHO:1.0 THETA:90.0", enc, sizeof(AstItem048_040)},
        {48130, "SUBFIELDS:03/07", all, sizeof(AstItem048_130)},
        {48042, "X:-1852.0 Y:1852.0 LSB:M", enc, sizeof(AstItem048_042)},
        {48170, "TYPE:SSR", all, sizeof(AstItem048_170)},
        {48210, "X:1.00 Y:0.01 V:0.88 H:1.41", all, sizeof(AstItem048_210)},
        {48030, "ERRCODE:1+ERRCODE:2+ERRCODE:4", all, sizeof(AstItem048_030)},
        {48110, "H:-25 LSB:FT", all, sizeof(AstItem048_110)},
        {48230, "FS:GND", all, sizeof(AstItem048_230)},
        {48260, "BDS:3,0", all, sizeof(AstItem048_260)},
        {48050, "MODE_2:0443 NOT_VALIDATED GARBLED SMOOTHED", enc, sizeof(AstItem048_050)}};
    std::vector<kovrel_test::Served> helper = items;
    helper[3].storage = 0;  // I048/130 is too large for the helper's storage
    kovrel_test::expect_served(r, helper);
    ASSERT_FALSE(HasFatalFailure());

    const std::string open = "<table class=\"detail_table\"><tr><th>Bit</th><th>Item</th><th>Value</th></tr>";
    for (size_t i = 1; i < items.size(); ++i) {
        const auto [id, summary, caps, size] = items[i];
        const AstDataItem &item = r.items[i];
        AstDataItemFuncs f;
        ast_dataitem_get_func(&f, id);
        std::vector<unsigned char> storage(size + 8, 0xC3);
        AstDataItemValue v{1, 0, &v};
        f.decode_ex(&v, storage.data(), size - 1, &item);
        EXPECT_TRUE(v.valid == 0 && v.id == id && v.value == nullptr) << id;
        EXPECT_EQ(storage, std::vector<unsigned char>(size + 8, 0xC3)) << id;
        f.decode_ex(&v, storage.data(), size, &item);
        EXPECT_TRUE(v.valid == 1 && v.value == storage.data() && storage.back() == 0xC3) << id;

        if (id == 48130) continue;  // generic compound texts
        EXPECT_EQ(text(f.get_summary, item), summary);
        const std::string html = text(f.get_detail_html, item);
        EXPECT_EQ(html.rfind(open, 0), 0u) << id << html;
        EXPECT_EQ(html.substr(html.size() - 13), "</table><br/>") << id;
        for (const AstDataItem &bad : {AstDataItem{item.data, item.length, id + 1, 1},
                                       AstDataItem{item.data, item.length, id, 0}}) {
            char buf[16] = "junk";
            f.get_summary(buf, sizeof buf, &bad);
            EXPECT_STREQ(buf, "") << id;
            std::strcpy(buf, "junk");
            f.get_detail_html(buf, sizeof buf, &bad);
            EXPECT_STREQ(buf, "") << id;
        }
    }
}

TEST(Cat048Items, Descriptor) {
    // FOE/FRI, bits 3-2 of octet 2: 01 and 10 read as the values 2 and 4
    // before the IFF conversion, so 01 is UNKNOWN and 10, 11 fold to
    // NO_INTERROGATION; " FRIEND" never shows.
    for (const auto &[bits, status] : {std::pair<uint8_t, uint32_t>{0x00, 0}, {0x02, 2}, {0x04, 0}, {0x06, 0}}) {
        const Octets o = {0x01, bits};
        const AstItem048_020 d = decoded(ast_dataitem_048_020_decode, o, 48020);
        EXPECT_TRUE(d.valid == 1 && d.foe_fri == status) << int(bits);
        EXPECT_EQ(text(ast_dataitem_048_020_get_summary, span(o, 48020)), "TYPE:NO_DETECTION CHN1");
        const std::string html = text(ast_dataitem_048_020_get_detail_html, span(o, 48020));
        EXPECT_NE(html.find(std::string("<td>") + ast_iff_status_to_str(status) + "</td></tr></table>"),
                  std::string::npos);
    }

    // FX set but the item is one octet long: the length decides, octet 2
    // fields keep their defaults and the summary ends after the flags.
    const Octets o = {0xFF};
    const AstItem048_020 d = decoded(ast_dataitem_048_020_decode, o, 48020);
    EXPECT_TRUE(d.valid == 1 && d.typ == 7 && d.rdp == 2 && d.sim + d.spi + d.rab == 3);
    EXPECT_EQ(d.tst + d.me + d.mi + d.foe_fri, 0u);
    EXPECT_EQ(text(ast_dataitem_048_020_get_summary, span(o, 48020)), "TYPE:PSR+ROLL_CALL SIM CHN2 SPI RAB");
    EXPECT_EQ(text(ast_dataitem_048_020_get_detail_html, span(o, 48020)).find("FOE_FRI"), std::string::npos);

    // Spans that are not a readable I048/020 give the defaults.
    const Octets none;
    for (const AstDataItem &bad : {span(o, 48030), span(none, 48020), AstDataItem{o.data(), 1, 48020, 0}}) {
        const AstItem048_020 x = decoded(ast_dataitem_048_020_decode, bad);
        EXPECT_TRUE(x.valid == 0 && x.rdp == 1 && x.typ == 0);
    }
}

TEST(Cat048Items, EncodeDecodeRoundTrips) {
    // I048/020: every one-octet item, and every second octet the structure
    // can express (FOE/FRI 00 or 01), come back as they were.
    for (unsigned a = 0; a < 256; a += 2) {
        const Octets one = {uint8_t(a)};
        EXPECT_EQ(encoded(ast_dataitem_048_020_encode, decoded(ast_dataitem_048_020_decode, one, 48020)), one);
        for (unsigned b : {0x02u, 0x08u, 0x10u, 0x80u, 0x9Au}) {
            const Octets two = {uint8_t(a | 1), uint8_t(b)};
            EXPECT_EQ(encoded(ast_dataitem_048_020_encode, decoded(ast_dataitem_048_020_decode, two, 48020)), two);
        }
    }
    AstItem048_020 d;
    ast_dataitem_048_020_init(&d);
    d.valid = 1;
    d.mi = 1;
    EXPECT_TRUE(encoded(ast_dataitem_048_020_encode, d, 1).empty()) << "two octets into one";
    for (auto bad : {+[](AstItem048_020 &x) { x.typ = 8; }, +[](AstItem048_020 &x) { x.rdp = 0; },
                     +[](AstItem048_020 &x) { x.foe_fri = 1; }, +[](AstItem048_020 &x) { x.valid = 0; }}) {
        AstItem048_020 x = d;
        bad(x);
        EXPECT_TRUE(encoded(ast_dataitem_048_020_encode, x).empty());
    }

    // I048/040 at both ends of each field.
    for (const Octets &o : {Octets{0, 0, 0, 0}, Octets{0xFF, 0xFF, 0xFF, 0xFF}, Octets{0x00, 0x01, 0xFF, 0xFE}})
        EXPECT_EQ(encoded(ast_dataitem_048_040_encode, decoded(ast_dataitem_048_040_decode, o, 48040)), o);
    AstItem048_040 p;
    ast_dataitem_048_040_init(&p);
    p.valid = 1;
    const double rho_lsb = 1.0 / 256, theta_lsb = 360.0 / 65536;
    p.rho = 65535 * rho_lsb;
    p.theta = 360.0 - theta_lsb / 4;  // rounds up to north
    EXPECT_EQ(encoded(ast_dataitem_048_040_encode, p), (Octets{0xFF, 0xFF, 0x00, 0x00}));
    p.rho = 65536 * rho_lsb;
    EXPECT_TRUE(encoded(ast_dataitem_048_040_encode, p).empty());
    p.rho = 0;
    p.rho_raw = 0x1234;  // no value: the raw field is sent
    p.theta = 360.0;
    EXPECT_TRUE(encoded(ast_dataitem_048_040_encode, p).empty());
    p.theta = 0;
    p.theta_raw = 0xFFFF;
    EXPECT_EQ(encoded(ast_dataitem_048_040_encode, p), (Octets{0x12, 0x34, 0xFF, 0xFF}));
    EXPECT_TRUE(encoded(ast_dataitem_048_040_encode, p, 3).empty());

    // I048/042 at both ends of each field; a value past 16 bits is refused.
    for (const Octets &o : {Octets{0x80, 0x00, 0x7F, 0xFF}, Octets{0xFF, 0xFF, 0x00, 0x01}})
        EXPECT_EQ(encoded(ast_dataitem_048_042_encode, decoded(ast_dataitem_048_042_decode, o, 48042)), o);
    AstItem048_042 c{1, 32768, 0};
    EXPECT_TRUE(encoded(ast_dataitem_048_042_encode, c).empty());
    c = {1, 0, -32769};
    EXPECT_TRUE(encoded(ast_dataitem_048_042_encode, c).empty());
    c = {1, -32768, 32767};
    EXPECT_TRUE(encoded(ast_dataitem_048_042_encode, c, 3).empty());

    // I048/050: codes 0000 and 7777 with each flag; the spare bit stays clear.
    for (const Octets &o : {Octets{0x00, 0x00}, Octets{0x8F, 0xFF}, Octets{0x40, 0x00}, Octets{0x2F, 0xFF}})
        EXPECT_EQ(encoded(ast_dataitem_048_050_encode, decoded(ast_dataitem_048_050_decode, o, 48050)), o);
    AstItem048_050 m = decoded(ast_dataitem_048_050_decode, Octets{0x0F, 0xFF}, 48050);
    EXPECT_EQ(m.code, 07777u);
    m.code = 010000;
    EXPECT_TRUE(encoded(ast_dataitem_048_050_encode, m).empty());
}

TEST(Cat048Items, TrackStatusHeightAndWarnings) {
    // The extension octet leaves the first octet's fields as they were.
    const AstItem048_170 one = decoded(ast_dataitem_048_170_decode, Octets{0xDC}, 48170);
    const AstItem048_170 ext = decoded(ast_dataitem_048_170_decode, Octets{0xDD, 0xFE}, 48170);
    EXPECT_EQ(std::memcmp(&one, &ext, offsetof(AstItem048_170, ext_present)), 0);
    EXPECT_TRUE(one.ext_present == 0 && one.tre + one.gho + one.sup + one.tcc == 0);
    EXPECT_TRUE(ext.ext_present == 1 && ext.tre + ext.gho + ext.sup + ext.tcc == 4);
    EXPECT_TRUE(one.valid == 1 && one.cnf + one.dou + one.mah == 3 && one.rad == 2 && one.cdm == 2);
    EXPECT_EQ(text(ast_dataitem_048_170_get_summary, span(Octets{0xDD, 0xFE}, 48170)), "TYPE:SSR");
    const AstItem048_170 none = decoded(ast_dataitem_048_170_decode, Octets{}, 48170);
    EXPECT_TRUE(none.valid == 0 && none.rad == 3 && none.cdm == 3 && none.pad1 + none.pad2 == 0);

    // 14-bit two's complement times 25 ft; the two top bits are spare.
    const struct {
        Octets o;
        int32_t feet;
    } heights[] = {{{0x3F, 0xFF}, -25}, {{0xFF, 0xFF}, -25}, {{0x1F, 0xFF}, 8191 * 25}, {{0x20, 0x00}, -8192 * 25}};
    for (const auto &h : heights) {
        const AstItem048_110 d = decoded(ast_dataitem_048_110_decode, h.o, 48110);
        EXPECT_TRUE(d.valid == 1 && d.height == h.feet) << h.feet;
        EXPECT_EQ(text(ast_dataitem_048_110_get_summary, span(h.o, 48110)), "H:" + std::to_string(h.feet) + " LSB:FT");
    }
    EXPECT_EQ(decoded(ast_dataitem_048_110_decode, Octets{0x00, 0x01, 0x00}, 48110).valid, 0u);

    // One code per octet, FX dropped, up to 23 octets.
    Octets codes(23, 0xFF);
    codes.back() = 0x02;
    const AstItem048_030 w = decoded(ast_dataitem_048_030_decode, codes, 48030);
    EXPECT_TRUE(w.valid == 1 && w.count == 23 && w.codes[0] == 127 && w.codes[22] == 1);
    codes.push_back(0x00);
    EXPECT_EQ(decoded(ast_dataitem_048_030_decode, codes, 48030).valid, 0u);
}

TEST(Cat048Items, CapabilityUndefinedCodesWarn) {
    kovrel_test::LogCapture log;
    const std::string com = "I048/230: Communication Capability Undefined.";
    const std::string fs = "I048/230: Flight Status Undefined.";
    const Octets undefined = {0xF8, 0x00};  // COM 7, STAT 6
    const AstItem048_230 d = decoded(ast_dataitem_048_230_decode, undefined, 48230);
    EXPECT_TRUE(d.valid == 1 && d.com == 7 && d.stat == 8);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, com) && log.contains(AST_LOG_WARNING, fs));
    log.clear();
    EXPECT_EQ(text_at(ast_dataitem_048_230_get_summary, span(undefined, 48230), 64), "FS:UNDEFINED");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, com) && log.contains(AST_LOG_WARNING, fs));

    log.clear();
    const Octets defined = {0x94, 0xAD};  // COM 4, STAT 5; MSSC, AIC, B1B 13
    const AstItem048_230 ok = decoded(ast_dataitem_048_230_decode, defined, 48230);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_TRUE(ok.com == 4 && ok.stat == 5 && ok.mssc + ok.aic == 2 && ok.arc + ok.b1a == 0 && ok.b1b == 13);
    EXPECT_EQ(text(ast_dataitem_048_230_get_summary, span(defined, 48230)), "FS:SPI");
    const std::string html = text(ast_dataitem_048_230_get_detail_html, span(defined, 48230));
    EXPECT_NE(html.find(ast_transponder_comm_cap_to_str(4)), std::string::npos);
}

TEST(Cat048Items, AcasReportIsRegister30) {
    const Octets o(kPlot.end() - 9, kPlot.end() - 2);
    ASSERT_EQ(o.size(), 7u);
    AstDataItem reg;
    ast_bds_decode(&reg, o.data(), o.size(), 0x30);
    const AstBds30 direct = ast_bds_30_decode(&reg);
    ASSERT_EQ(direct.valid, 1);
    const AstItem048_260 d = decoded(ast_dataitem_048_260_decode, o, 48260);
    EXPECT_TRUE(d.valid == 1 && d.bds.threat_type == 1);
    EXPECT_EQ(std::memcmp(&d.bds, &direct, sizeof direct), 0);
    EXPECT_EQ(text(ast_dataitem_048_260_get_summary, span(o, 48260)), "BDS:3,0");

    const Octets short_item(o.begin(), o.end() - 1);
    EXPECT_EQ(decoded(ast_dataitem_048_260_decode, short_item, 48260).valid, 0u);
    EXPECT_EQ(text(ast_dataitem_048_260_get_summary, span(short_item, 48260)), "");
}

TEST(Cat048Items, PlotCharacteristicsSubfields) {
    const Octets o = {0xE0, 0x40, 0x05, 0xF6};
    const AstItem048_130 d = decoded(ast_dataitem_048_130_decode, o, 48130);
    ASSERT_EQ(d.valid, 1u);
    EXPECT_TRUE(d.subfields.span_count == 7 && d.srl_present + d.srr_present + d.sam_present == 3);
    EXPECT_TRUE(d.srl_raw == 0x40 && d.srr == 5 && d.sam == -10);
    EXPECT_DOUBLE_EQ(d.srl, 0x40 * 360.0 / 8192.0);

    const char *expected[7] = {"2.81 LSB=DEG", "5", "-10 LSB=DBM", "NOT_IMPLEMENTED", "NOT_IMPLEMENTED",
                               "NOT_IMPLEMENTED", "NOT_IMPLEMENTED"};
    for (uint32_t i = 0; i < 7; ++i) {
        char buf[32] = "junk";
        ast_subfield_048_130_get_summary(buf, sizeof buf, &d.subfields.spans[i], 48130001 + i);
        EXPECT_STREQ(buf, expected[i]) << i;
    }
    // An absent subfield has no value text; a cut text stays inside its buffer.
    const AstItem048_130 srl_only = decoded(ast_dataitem_048_130_decode, Octets{0x80, 0x10}, 48130);
    EXPECT_EQ(srl_only.srl_present + srl_only.srr_present + srl_only.sam_present, 1);
    char buf[8] = "junk";
    ast_subfield_048_130_get_summary(buf, sizeof buf, &srl_only.subfields.spans[1], 48130002);
    EXPECT_STREQ(buf, "");
    char cut[5] = {'x', 'x', 'x', 'x', '\x5A'};
    ast_subfield_048_130_get_summary(cut, 4, &d.subfields.spans[0], 48130001);
    EXPECT_STREQ(cut, "2.8");
    EXPECT_EQ(cut[4], '\x5A');

    // Subfields beyond the item, another identifier, an invalid span.
    EXPECT_EQ(decoded(ast_dataitem_048_130_decode, Octets{0xE0, 0x40}, 48130).valid, 0u);
    EXPECT_EQ(decoded(ast_dataitem_048_130_decode, o, 48120).valid, 0u);
    const AstItem048_130 empty = decoded(ast_dataitem_048_130_decode, Octets{0x1E, 0, 0, 0, 0}, 48130);
    EXPECT_TRUE(empty.valid == 1 && empty.srl_present + empty.srr_present + empty.sam_present == 0);
}
