#include "output.h"

#include <cstdio>
#include <vector>

#include "decode.h"
#include "fields.h"

namespace kovrel_tool {
namespace {

std::string id_text(AstItemId id) {
    char buf[16];
    ast_dataitem_type_to_str(buf, sizeof buf, id);
    return buf;
}

}  // namespace

std::string item_hex(const AstDataItem &item) {
    std::vector<char> buf(static_cast<size_t>(item.length) * 3 + 1);
    ast_dataitem_get_hex_str(buf.data(), buf.size(), &item);
    return buf.data();
}

std::string item_summary(const AstDataItem &item) {
    char buf[4096];
    ast_dataitem_get_summary(buf, sizeof buf, &item);
    return buf;
}

std::string record_line(const RecordView &v) {
    const AstDataRecord &r = *v.record;
    // A record that could not be read whole has no length.
    const std::string length = r.valid ? std::to_string(r.length) : "-";
    char buf[256];
    std::snprintf(buf, sizeof buf, "blk %-5llu %-14s CAT%03u %-13s rec %-2zu len %-4s items %-2llu %s",
                  static_cast<unsigned long long>(v.block), format_location(v.where).c_str(), r.category,
                  r.uap.get_dataitem ? profile_label(r.uap, r.category) : "-", v.number, length.c_str(),
                  static_cast<unsigned long long>(r.item_count), r.valid ? "valid" : "INVALID");
    const std::string tags = field_tags(record_fields(r));
    return tags.empty() ? std::string(buf) : buf + ("  " + tags);
}

std::string item_line(const AstDataItem &item) {
    char head[160];
    std::snprintf(head, sizeof head, "    %-9s %-46s len %-3llu ", id_text(item.id).c_str(),
                  ast_dataitem_get_name(item.id), static_cast<unsigned long long>(item.length));
    return head + item_hex(item) + "  | " + item_summary(item);
}

nlohmann::json item_json(const AstDataItem &item) {
    return {{"id", id_text(item.id)},
            {"name", ast_dataitem_get_name(item.id)},
            {"len", item.length},
            {"hex", item_hex(item)},
            {"summary", item_summary(item)}};
}

nlohmann::json record_json(const RecordView &v) {
    const AstDataRecord &r = *v.record;
    nlohmann::json j;
    j["input"] = std::string(v.input);
    j["block"] = v.block;
    j["offset"] = v.where.offset;
    if (v.where.packet != 0) {
        j["packet"] = v.where.packet;
        j["time"] = v.time;
    }
    j["cat"] = r.category;
    j["uap"] = r.uap.get_dataitem ? profile_label(r.uap, r.category) : "-";
    j["record"] = v.number;
    if (r.valid)
        j["length"] = r.length;
    else
        j["length"] = nullptr;
    j["item_count"] = r.item_count;
    j["valid"] = r.valid != 0;
    j["block_valid"] = v.block_valid;
    j["fields"] = record_fields(r);
    nlohmann::json items = nlohmann::json::array();
    for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) items.push_back(item_json(r.items[i]));
    j["items"] = std::move(items);
    return j;
}

std::string json_line(const nlohmann::json &value) {
    return value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace kovrel_tool
