// `kovrel decode --stats`: time spans per source, bad blocks grouped by
// reason, the count of filtered records, and the JSON object.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "filter.h"
#include "session.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

// A CAT048 block with one record per (SIC, 1/128 s count); a count of
// 0xFFFFFFFF leaves I048/140 out.
Octets timed_block(std::initializer_list<std::pair<uint8_t, uint32_t>> records) {
    Octets b = {48, 0, 0};
    for (const auto &[sic, count] : records) {
        if (count == 0xFFFFFFFFu) {
            b.insert(b.end(), {0x80, 25, sic});
            continue;
        }
        b.insert(b.end(), {0xC0, 25, sic, static_cast<uint8_t>(count >> 16), static_cast<uint8_t>(count >> 8),
                           static_cast<uint8_t>(count)});
    }
    b[1] = static_cast<uint8_t>(b.size() >> 8);
    b[2] = static_cast<uint8_t>(b.size());
    return b;
}

constexpr uint32_t kTen = 36000u * 128;  // 10:00:00.000
constexpr uint32_t kNoTime = 0xFFFFFFFFu;

bool has(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

struct Counted {
    Capture out, messages, report;
    DecodeSession session;
    explicit Counted(const RecordFilter *filter = nullptr)
        : session(settings(filter), out.file(), messages.file()) {}
    static SessionSettings settings(const RecordFilter *filter) {
        SessionSettings s;
        s.format = RecordFormat::None;
        s.filter = filter;
        return s;
    }
};

}  // namespace

TEST(ToolStats, SourcesKeepTheirEarliestAndLatestTime) {
    Counted run;
    // Out of order, two sources, one record without a time.
    const Octets in = concat({timed_block({{1, kTen + 320}, {2, kTen + 64}}),
                              timed_block({{1, kTen}, {1, kNoTime}, {1, kTen + 128 * 3600 + 1}})});
    run.session.decode_memory("in", in.data(), in.size());
    const auto spans = run.session.stats().source_spans();
    ASSERT_EQ(spans.size(), 2u);
    const auto &a = spans.at({48, 25, 1});
    EXPECT_EQ(a.records, 4u);
    ASSERT_TRUE(a.has_time);
    EXPECT_EQ(a.first_ms, 36000000u);
    EXPECT_EQ(a.last_ms, 39600007u);  // 11:00:00.0078 truncated
    const auto &b = spans.at({48, 25, 2});
    EXPECT_EQ(b.records, 1u);
    EXPECT_EQ(b.first_ms, 36000500u);
    EXPECT_EQ(b.last_ms, 36000500u);

    run.session.stats().print(run.report.file(), 1.0);
    const std::string text = run.report.text();
    EXPECT_TRUE(has(text, "  per source (SAC/SIC)       records  time of day\n")) << text;
    EXPECT_TRUE(has(text, "    CAT048 025/001                  4  10:00:00.000 - 11:00:00.007\n")) << text;
    EXPECT_TRUE(has(text, "    CAT048 025/002                  1  10:00:00.500 - 10:00:00.500\n")) << text;
    EXPECT_FALSE(has(text, "matched")) << text;
    EXPECT_FALSE(has(text, "by reason")) << text;

    // A source whose records never tell the time shows no span.
    Counted untimed;
    const Octets u = timed_block({{7, kNoTime}});
    untimed.session.decode_memory("in", u.data(), u.size());
    EXPECT_FALSE(untimed.session.stats().source_spans().at({48, 25, 7}).has_time);
    untimed.session.stats().print(untimed.report.file(), 1.0);
    EXPECT_TRUE(has(untimed.report.text(), "    CAT048 025/007                  1\n")) << untimed.report.text();
}

TEST(ToolStats, BadBlocksGroupedByReason) {
    Counted run;
    const Octets cut1 = {0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06};  // I048/130 cut short
    const Octets cut2 = {0x30, 0x00, 0x0C, 0x80, 0x19, 0x01, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06};  // in record 2
    const Octets in = concat({cut1, sacsic_block(1), cut2, cut1, {0x30, 0x00, 0x01, 0x30, 0x00}});
    run.session.decode_memory("in", in.data(), in.size());
    const Stats &st = run.session.stats();
    EXPECT_EQ(st.invalid, 4u);
    ASSERT_EQ(st.invalid_reasons.size(), 2u);
    const auto first = st.invalid_reasons.begin();
    EXPECT_EQ(first->first, "LEN N is below 3");
    EXPECT_EQ(first->second, 1u);
    const auto second = std::next(first);
    EXPECT_EQ(second->first,
              "no profile reads the whole block; furthest with standard: record N at octet N: after I048/010, "
              "I048/130 (FRN N) cannot be delimited in the N octets left");
    EXPECT_EQ(second->second, 3u);

    st.print(run.report.file(), 0.5);
    const std::string text = run.report.text();
    EXPECT_TRUE(has(text, "  invalid blocks by reason    blocks\n             1  LEN N is below 3\n"
                          "             3  no profile reads")) << text;

    // A header cut short, alone.
    Counted tail;
    const Octets t = concat({sacsic_block(1), {0x30, 0x00}});
    tail.session.decode_memory("in", t.data(), t.size());
    ASSERT_EQ(tail.session.stats().invalid_reasons.size(), 1u);
    EXPECT_EQ(tail.session.stats().invalid_reasons.begin()->first, "N octets left, too few for a block header");
}

TEST(ToolStats, FilteredCountsAndJson) {
    RecordFilter filter;
    std::string error;
    ASSERT_TRUE(filter.add_condition("sacsic=25/1", error)) << error;
    Counted run(&filter);
    const Octets in = concat({timed_block({{1, kTen}, {2, kTen + 128}, {1, kTen + 256}}),
                              {0x30, 0x00, 0x01}});
    run.session.decode_memory("in", in.data(), in.size());
    const Stats &st = run.session.stats();
    EXPECT_TRUE(st.filtered);
    EXPECT_EQ(st.records, 3u);
    EXPECT_EQ(st.matched, 2u);

    st.print(run.report.file(), 1.0);
    EXPECT_TRUE(has(run.report.text(), "  blocks          2 read: 1 valid, 1 invalid\n"
                                       "  records         3 read, 2 matched the filter, 0 printed\n"))
        << run.report.text();

    Capture json_out;
    st.print_json(json_out.file(), 2.0);
    const auto lines = json_out.lines();
    ASSERT_EQ(lines.size(), 1u);
    const nlohmann::json j = nlohmann::json::parse(lines[0]).at("stats");
    EXPECT_EQ(j.at("records"), nlohmann::json::parse(R"({"read":3,"matched":2,"printed":0})"));
    EXPECT_EQ(j.at("blocks"), nlohmann::json::parse(R"({"read":2,"valid":1,"invalid":1})"));
    EXPECT_EQ(j.at("seconds"), 2.0);
    ASSERT_EQ(j.at("sources").size(), 1u);  // the filtered-out source is not counted
    EXPECT_EQ(j.at("sources")[0], nlohmann::json::parse(R"({"cat":48,"sac":25,"sic":1,"records":2,
                                                           "first":"10:00:00.000","last":"10:00:02.000"})"));
    EXPECT_EQ(j.at("message_types")[0], nlohmann::json::parse(R"({"cat":48,"type":"Plot","records":2})"));
    EXPECT_EQ(j.at("categories")[0].at("records"), 3);
    EXPECT_EQ(j.at("invalid_reasons"), nlohmann::json::parse(R"([{"reason":"LEN N is below 3","blocks":1}])"));
    EXPECT_FALSE(j.contains("packets"));

    // Without a filter there is no matched count.
    Counted plain;
    plain.session.decode_memory("in", in.data(), in.size());
    Capture plain_json;
    plain.session.stats().print_json(plain_json.file(), 0.0);
    const nlohmann::json p = nlohmann::json::parse(plain_json.text()).at("stats");
    EXPECT_EQ(p.at("records"), nlohmann::json::parse(R"({"read":3,"printed":0})"));
    EXPECT_FALSE(p.contains("mb_per_s"));
    EXPECT_EQ(p.at("sources").size(), 2u);
}

#endif  // KOVREL_HAVE_TOOL_CORE
