// `kovrel decode --format csv`: the columns a user may ask for, and the
// rows: record columns, record fields, item fields by path, empty cells,
// quoting.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "output_csv.h"
#include "session.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

Octets block_of(std::initializer_list<Octets> records) {
    Octets b = {48, 0, 0};
    for (const auto &r : records) b.insert(b.end(), r.begin(), r.end());
    b[1] = static_cast<uint8_t>(b.size() >> 8);
    b[2] = static_cast<uint8_t>(b.size());
    return b;
}

// I048/010, 140, 070, 240: SAC 25 SIC 1, 12:34:56.789, 5077, DLH123.
const Octets kTagged = {0xC9, 0x40, 0x19, 0x01, 0x58, 0x78, 0x65, 0x0A, 0x3F, 0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20};
// I048/010, 040 (rho 3201/256 NM) and 030 (codes 3 and 11).
const Octets kPolar = {0x91, 0x01, 0x40, 0x19, 0x01, 0x0C, 0x81, 0x20, 0x01, 0x07, 0x16};
const Octets kSourceOnly = {0x80, 0x19, 0x03};
const Octets kCutShort = {0x82, 0x19, 0x04, 0xE0, 0x29, 0x06};  // I048/130 announces more than it holds

std::string csv(const std::string &columns, const Octets &input, const std::string &name = "in") {
    SessionSettings s;
    s.format = RecordFormat::Csv;
    std::string error;
    EXPECT_TRUE(parse_csv_columns(columns, s.columns, error)) << error;
    Capture out, messages;
    {
        DecodeSession session(s, out.file(), messages.file());
        session.decode_memory(name, input.data(), input.size());
    }
    return out.text();
}

}  // namespace

TEST(ToolCsv, ColumnsAreCheckedWhenRead) {
    std::vector<CsvColumn> columns;
    std::string error;
    ASSERT_TRUE(parse_csv_columns("block, sac ,I048/250.bds60.ias,I021/A03.x.0,uap,I048/SPF.raw", columns, error));
    ASSERT_EQ(columns.size(), 6u);
    EXPECT_EQ(columns[0].kind, CsvColumn::Record);
    EXPECT_EQ(columns[1].kind, CsvColumn::Field);
    EXPECT_EQ(columns[1].name, "sac");
    EXPECT_EQ(columns[2].kind, CsvColumn::ItemPath);
    EXPECT_EQ(columns[2].item, "I048/250");
    EXPECT_EQ(columns[2].path, "bds60.ias");
    EXPECT_EQ(columns[3].path, "x.0");
    EXPECT_EQ(columns[5].item, "I048/SPF");

    const struct {
        const char *list, *error;
    } bad[] = {
        {"block,squawk", "unknown column 'squawk'; record columns: input, block,"},
        {"", "empty column name"},
        {"sac,,sic", "empty column name"},
        {"I048/040", "column 'I048/040': an item field is"},
        {"I048/040.", "column 'I048/040.': an item field is"},
        {"I48/040.rho", "column 'I48/040.rho'"},
        {"I048/04.rho", "column 'I048/04.rho'"},
        {"i048/040.rho", "column 'i048/040.rho'"},
        {"fields.sac", "column 'fields.sac'"},
    };
    for (const auto &b : bad) {
        error.clear();
        EXPECT_FALSE(parse_csv_columns(b.list, columns, error)) << b.list;
        EXPECT_EQ(error.rfind(b.error, 0), 0u) << error;
    }
}

TEST(ToolCsv, RowsHoldRecordAndItemValues) {
    const Octets input = concat({block_of({kTagged, kPolar}), block_of({kSourceOnly, kCutShort})});
    const std::string columns =
        "input,block,record,valid,length,packet,sac,callsign,mode3a,rho,I048/010.sic,I048/240.acid,"
        "I048/030.codes.1,I048/030.codes,I048/040.rho,I048/040.nothing";
    EXPECT_EQ(csv(columns, input, "a,\"b\""),
              columns + "\n"
                        R"("a,""b""",1,1,true,15,,25,DLH123,5077,,1,DLH123  ,,,,)" "\n"
                        R"("a,""b""",1,2,true,11,,25,,,12.50390625,1,,11,,12.50390625,)" "\n"
                        R"("a,""b""",2,1,true,3,,25,,,,3,,,,,)" "\n"
                        // The record the bad block stopped at answers nothing, but its items read.
                        R"("a,""b""",2,2,false,,,,,,,4,,,,,)" "\n");

    // Defaults: where and what the record is, and every record field.
    EXPECT_EQ(csv("block,offset,cat,uap,record,valid,sac,sic,tod,msgtype,track,mode3a,fl,sel_alt,callsign,icao,lat,"
                  "lon,rho,theta,x,y,speed,heading,vx,vy,vrate",
                  block_of({kTagged})),
              "block,offset,cat,uap,record,valid,sac,sic,tod,msgtype,track,mode3a,fl,sel_alt,callsign,icao,lat,lon,"
              "rho,theta,x,y,speed,heading,vx,vy,vrate\n"
              "1,0,48,standard,1,true,25,1,12:34:56.789,Plot,,5077,,,DLH123,,,,,,,,,,,,\n");
    std::vector<CsvColumn> defaults;
    std::string error;
    ASSERT_TRUE(parse_csv_columns(default_csv_columns(), defaults, error));
    EXPECT_EQ(defaults.size(), 27u);
    EXPECT_EQ(default_csv_columns().rfind("block,offset,cat,uap,record,valid,sac,sic,tod,", 0), 0u);

    // Captures have a packet and a time; a line end in a cell is quoted.
    const Octets capture = pcap_file(1, {ethernet(0x0800, ipv4(udp(block_of({kSourceOnly}))))});
    EXPECT_EQ(csv("packet,time,offset,input", capture, "two\nlines"),
              "packet,time,offset,input\n1,1715680800.0005,0,\"two\nlines\"\n");
    // The datagram's addresses; raw inputs have none.
    EXPECT_EQ(csv("src,dst,cat", capture), "src,dst,cat\n10.0.0.1:4000,239.1.1.1:8600,48\n");
    EXPECT_EQ(csv("src,dst,cat", block_of({kSourceOnly})), "src,dst,cat\n,,48\n");
    // A header with no records still goes out, once.
    EXPECT_EQ(csv("sac,I048/010.sac", Octets{}), "sac,I048/010.sac\n");
}

#endif  // KOVREL_HAVE_TOOL_CORE
