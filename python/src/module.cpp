// The extension module kovrel._kovrel: the pieces the Python package is
// made of. The package (kovrel/__init__.py) puts the public API together.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <kovrel/keyword.h>
#include <kovrel/kovrel.h>

#include "columns.h"
#include "decode.h"
#include "encoder.h"
#include "fields.h"
#include "json_writer.h"
#include "out_buffer.h"
#include "output.h"
#include "output_csv.h"
#include "profiles.h"
#include "stream.h"

namespace py = pybind11;

namespace kovrel_py {
namespace {

// Raised for octets that are not a block, with the decoder's reason.
struct DecodeFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

const AstUap *profile_of(const std::string &name) {
    if (name == "auto") return nullptr;
    if (const AstUap *uap = kovrel_tool::find_profile(name)) return uap;
    std::string known = "auto";
    for (const auto &p : kovrel_tool::profiles()) known += std::string(", ") + p.name;
    throw py::value_error("unknown profile '" + name + "'; profiles: " + known);
}

// A library text call into a buffer that grows until the text fits.
template <typename Fn>
std::string grown_text(Fn fn, size_t start = 4096) {
    for (size_t size = start;; size *= 4) {
        std::unique_ptr<char[]> buf(new char[size]);
        buf[0] = '\0';
        fn(buf.get(), size);
        const size_t n = std::strlen(buf.get());
        if (n + 1 < size || size >= (64u << 20)) return std::string(buf.get(), n);
    }
}

// ---- Whole inputs ------------------------------------------------------

// Records as the tool's JSON lines.
class JsonSink : public RecordSink {
public:
    JsonSink() : formatter_(buffer_) {}
    void record(const kovrel_tool::RecordView &view) override {
        formatter_.json_line(view);
        ++records_;
    }
    kovrel_tool::OutBuffer &buffer() { return buffer_; }
    size_t records() const { return records_; }
    void reset() {
        buffer_.clear();
        records_ = 0;
    }

private:
    kovrel_tool::OutBuffer buffer_;
    kovrel_tool::RecordFormatter formatter_;
    size_t records_ = 0;
};

template <typename T>
py::array_t<T> to_array(std::vector<T> &&values) {
    auto *held = new std::vector<T>(std::move(values));
    py::capsule owner(held, [](void *p) { delete static_cast<std::vector<T> *>(p); });
    return py::array_t<T>({static_cast<py::ssize_t>(held->size())}, {sizeof(T)}, held->data(), owner);
}

// One input, opened from a path, a descriptor or a buffer.
class Reader {
public:
    explicit Reader(const std::string &uap) : stream_(profile_of(uap)) {}

    void add_filter(const std::string &text) {
        std::string error;
        if (!stream_.add_filter(text, error)) throw py::value_error(error);
    }

    void set_framing(const std::string &name) {
        if (!stream_.set_framing(name))
            throw py::value_error("unknown framing \"" + name + "\": use auto, none, oradis, final or length");
    }

    void open_path(const std::string &path) {
        std::string error;
        bool ok;
        {
            py::gil_scoped_release release;
            ok = stream_.open_path(path, error);
        }
        if (!ok) throw py::value_error(error);
    }
    void open_fd(const std::string &name, int fd, uint64_t position) {
        std::string error;
        bool ok;
        {
            py::gil_scoped_release release;
            ok = stream_.open_fd(name, fd, position, error);
        }
        if (!ok) throw py::value_error(error);
    }
    void open_buffer(const std::string &name, py::buffer data) {
        buffer_ = std::make_unique<py::buffer_info>(data.request());
        if (buffer_->itemsize != 1 || buffer_->ndim != 1) throw py::type_error("the octets must be a flat buffer");
        std::string error;
        if (!stream_.open_memory(name, static_cast<const uint8_t *>(buffer_->ptr),
                                 static_cast<size_t>(buffer_->size * buffer_->itemsize), error))
            throw py::value_error(error);
    }

    // JSON Lines of the next blocks, at least `records` records when the
    // input has them; None at the end.
    py::object next_json(size_t records) {
        json_.reset();
        bool more = true;
        {
            py::gil_scoped_release release;
            while (json_.records() < records && (more = stream_.next_block(json_))) {
            }
        }
        if (json_.records() == 0 && !more) return py::none();
        const std::string_view text = json_.buffer().view();
        return py::reinterpret_steal<py::object>(
            PyUnicode_DecodeUTF8(text.data(), static_cast<py::ssize_t>(text.size()), "replace"));
    }

    std::vector<std::string> messages() { return stream_.take_messages(); }

    // Every record left, as columns: [(name, kind, array, extra)]: kind
    // "int" (int64), "int?" (int64, extra a uint8 array, 1 where missing),
    // "real" (float64), "bool" (uint8), "text" (int32 codes, extra the
    // texts), "time" and "tod" (int64 nanoseconds, INT64_MIN where
    // missing), "empty" (the array is the number of rows).
    py::list columns(const std::string &wanted) {
        std::vector<kovrel_tool::CsvColumn> parsed;
        std::string error;
        if (!kovrel_tool::parse_csv_columns(wanted, parsed, error)) throw py::value_error(error);
        ColumnSink sink(std::move(parsed));
        {
            py::gil_scoped_release release;
            // Once a few hundred kilooctets are decoded, the columns are
            // sized for the whole input at that density (an eighth more for
            // the way it varies): buffers that double as they fill copy every
            // row again and touch twice the memory.
            bool sized = stream_.octets_total() == 0;
            while (stream_.next_block(sink)) {
                if (sized || stream_.octets_done() < (256u << 10)) continue;
                sized = true;
                const double per_octet = static_cast<double>(sink.rows()) / static_cast<double>(stream_.octets_done());
                sink.reserve(static_cast<size_t>(per_octet * static_cast<double>(stream_.octets_total()) * 1.125) + 64);
            }
        }
        py::list out;
        for (Column &c : sink.columns()) {
            const char *kind = "";
            py::object values = py::none(), extra = py::none();
            switch (c.kind) {
            case Column::Unknown:
                kind = "empty";
                values = py::int_(c.pending);
                break;
            case Column::Int:
                kind = c.nullable ? "int?" : "int";
                values = to_array(std::move(c.ints));
                if (c.nullable) extra = to_array(std::move(c.bytes));
                break;
            case Column::Real: kind = "real"; values = to_array(std::move(c.reals)); break;
            case Column::Time: kind = "time"; values = to_array(std::move(c.ints)); break;
            case Column::Tod: kind = "tod"; values = to_array(std::move(c.ints)); break;
            case Column::Bool: kind = "bool"; values = to_array(std::move(c.bytes)); break;
            case Column::Text: {
                kind = "text";
                values = to_array(std::move(c.codes));
                py::list texts;
                for (const std::string &t : c.texts.texts())
                    texts.append(py::reinterpret_steal<py::object>(
                        PyUnicode_DecodeUTF8(t.data(), static_cast<py::ssize_t>(t.size()), "replace")));
                extra = texts;
                break;
            }
            }
            out.append(py::make_tuple(c.name, kind, values, extra));
        }
        return out;
    }

private:
    RecordStream stream_;
    std::unique_ptr<py::buffer_info> buffer_;
    JsonSink json_;
};

// ---- Encoding ----------------------------------------------------------

// JSON Lines to blocks with the tool's encoder. Returns the octets and the
// problems as (line, reason).
py::tuple encode_lines(const std::string &lines, size_t block_records) {
    char *out_data = nullptr, *msg_data = nullptr;
    size_t out_size = 0, msg_size = 0;
    {
        py::gil_scoped_release release;
        std::FILE *in = fmemopen(const_cast<char *>(lines.data()), lines.size(), "r");
        std::FILE *out = open_memstream(&out_data, &out_size);
        std::FILE *messages = open_memstream(&msg_data, &msg_size);
        if (in && out && messages && !lines.empty())
            kovrel_tool::encode_lines(in, "records", out, messages, block_records);
        if (in) std::fclose(in);
        if (out) std::fclose(out);
        if (messages) std::fclose(messages);
    }
    py::bytes octets(out_data ? out_data : "", out_data ? out_size : 0);
    std::free(out_data);
    py::list problems;
    // "kovrel: records:LINE: reason"
    const std::string text(msg_data ? msg_data : "", msg_data ? msg_size : 0);
    std::free(msg_data);
    const std::string head = "kovrel: records:";
    size_t pos = 0;
    while (pos < text.size()) {
        size_t end = text.find('\n', pos);
        if (end == std::string::npos) end = text.size();
        const std::string line = text.substr(pos, end - pos);
        pos = end + 1;
        if (line.compare(0, head.size(), head) != 0) continue;
        const size_t colon = line.find(':', head.size());
        if (colon == std::string::npos) continue;
        const long number = std::strtol(line.c_str() + head.size(), nullptr, 10);
        const size_t reason = colon + (colon + 1 < line.size() && line[colon + 1] == ' ' ? 2 : 1);
        problems.append(py::make_tuple(number, line.substr(reason)));
    }
    return py::make_tuple(octets, problems);
}

// ---- Blocks, records and items over a buffer ---------------------------

// A decoded block and the buffer its spans point into.
struct BlockHolder {
    py::object owner;  // memoryview of the caller's octets
    std::unique_ptr<py::buffer_info> info;
    const uint8_t *base = nullptr;
    size_t offset = 0;  // of the block in the buffer
    AstDataBlock block{};
    bool valid = false;
    std::string reason;
    bool has_failed = false;
    size_t failed_index = 0;
    AstDataRecord failed{};

    py::object span(const uint8_t *data, uint64_t length) const {
        const size_t start = static_cast<size_t>(data - base);
        return owner[py::slice(static_cast<py::ssize_t>(start), static_cast<py::ssize_t>(start + length), 1)];
    }
};

// One decoder per profile, kept: Block objects are made under the GIL.
kovrel_tool::BlockDecoder &decoder_for(const AstUap *uap) {
    static std::map<const AstUap *, std::unique_ptr<kovrel_tool::BlockDecoder>> decoders;
    auto &d = decoders[uap];
    if (!d) d = std::make_unique<kovrel_tool::BlockDecoder>(uap);
    return *d;
}

std::string item_id_text(AstItemId id) {
    char text[16];
    ast_dataitem_type_to_str(text, sizeof text, id);
    return text;
}

py::object json_loads(const std::string &text) {
    // Kept for the life of the process: a static object would be released
    // after the interpreter has gone.
    static py::object *loads = new py::object(py::module_::import("json").attr("loads"));
    return (*loads)(py::reinterpret_steal<py::object>(
        PyUnicode_DecodeUTF8(text.data(), static_cast<py::ssize_t>(text.size()), "replace")));
}

class Item {
public:
    Item(std::shared_ptr<BlockHolder> h, const AstDataItem *item) : h_(std::move(h)), item_(item) {}
    std::string id() const { return item_id_text(item_->id); }
    std::string name() const {
        const char *n = ast_dataitem_get_name(item_->id);
        return n ? n : "";
    }
    bool valid() const { return item_->valid == 1; }
    size_t length() const { return static_cast<size_t>(item_->length); }
    py::object data() const { return h_->span(item_->data, item_->length); }
    std::string hex() const {
        kovrel_tool::OutBuffer out;
        kovrel_tool::put_item_hex(out, *item_);
        return std::string(out.view());
    }
    std::string summary() const {
        char buf[kovrel_tool::kSummarySize];
        buf[0] = '\0';
        ast_dataitem_get_summary(buf, sizeof buf, item_);
        return buf;
    }
    std::string detail_html() const {
        return grown_text([this](char *b, size_t n) { ast_dataitem_get_detail_html(b, n, item_); });
    }
    py::object fields() const {
        if (!ast_dataitem_has_fields(item_->id)) return py::none();
        const size_t need = ast_dataitem_get_fields_json(nullptr, 0, item_);
        if (need == 0) return py::none();
        std::string text(need + 1, '\0');
        ast_dataitem_get_fields_json(text.data(), text.size(), item_);
        text.resize(need);
        return json_loads(text);
    }
    std::string repr() const { return "<kovrel.Item " + id() + " " + summary() + ">"; }

private:
    std::shared_ptr<BlockHolder> h_;
    const AstDataItem *item_;
};

// Keyword names as Python spells them, with the library's identifiers.
const std::map<std::string, uint32_t> &keyword_ids() {
    static const std::map<std::string, uint32_t> ids = {
        {"sacsic", AST_KEYWORD_SACSIC},         {"tod", AST_KEYWORD_TIMESTAMP},
        {"type", AST_KEYWORD_TYPE},             {"msgtype", AST_KEYWORD_TYPE},
        {"track", AST_KEYWORD_TRACK_NUMBER},    {"mode3a", AST_KEYWORD_MODE3A},
        {"fl", AST_KEYWORD_FLIGHT_LEVEL},       {"sel_alt", AST_KEYWORD_SELECTED_ALTITUDE},
        {"callsign", AST_KEYWORD_CALLSIGN},     {"icao", AST_KEYWORD_ICAO_ADDRESS},
        {"wgs84", AST_KEYWORD_WGS84},           {"polar", AST_KEYWORD_POLAR},
        {"speed", AST_KEYWORD_SPEED},           {"heading", AST_KEYWORD_HEADING},
        {"velocity", AST_KEYWORD_CARTESIAN_VELOCITY}, {"vrate", AST_KEYWORD_VERTICAL_RATE},
    };
    return ids;
}

uint32_t keyword_id(const std::string &name) {
    const auto &ids = keyword_ids();
    const auto it = ids.find(name);
    if (it != ids.end()) return it->second;
    // The library's display names ("Track Number") are taken too.
    for (uint32_t id = 0; id < AST_KEYWORD_COUNT; ++id) {
        char text[64];
        ast_keyword_name(text, sizeof text, id);
        if (strcasecmp(text, name.c_str()) == 0) return id;
    }
    std::string known;
    for (const auto &[k, v] : ids) known += (known.empty() ? "" : ", ") + k;
    throw py::key_error("unknown keyword '" + name + "'; keywords: " + known);
}

class Record {
public:
    Record(std::shared_ptr<BlockHolder> h, const AstDataRecord *r, size_t number)
        : h_(std::move(h)), r_(r), number_(number) {}
    uint32_t category() const { return r_->category; }
    bool valid() const { return r_->valid == 1; }
    py::object length() const { return r_->valid == 1 ? py::object(py::int_(r_->length)) : py::none(); }
    size_t number() const { return number_; }
    std::string uap() const {
        kovrel_tool::ProfileLabels label;
        return label(*r_);
    }
    py::object data() const {
        return r_->valid == 1 ? h_->span(r_->data, r_->length) : py::none();
    }
    std::vector<Item> items() const {
        std::vector<Item> out;
        for (uint64_t i = 0; i < r_->item_count && i < AST_DATARECORD_MAX_ITEMS; ++i)
            out.emplace_back(h_, &r_->items[i]);
        return out;
    }
    size_t item_count() const { return static_cast<size_t>(r_->item_count); }
    Item item(const std::string &id) const {
        for (uint64_t i = 0; i < r_->item_count && i < AST_DATARECORD_MAX_ITEMS; ++i)
            if (item_id_text(r_->items[i].id) == id) return Item(h_, &r_->items[i]);
        throw py::key_error("the record has no item " + id);
    }
    bool has_item(const std::string &id) const {
        for (uint64_t i = 0; i < r_->item_count && i < AST_DATARECORD_MAX_ITEMS; ++i)
            if (item_id_text(r_->items[i].id) == id) return true;
        return false;
    }
    py::object fields() const {
        kovrel_tool::RecordFieldReader reader;
        kovrel_tool::RecordFields f;
        reader.read(f, *r_);
        kovrel_tool::OutBuffer out;
        kovrel_tool::JsonWriter json(out);
        kovrel_tool::write_fields_json(json, f);
        return json_loads(std::string(out.view()));
    }
    py::object to_dict(const std::string &input, uint64_t block) const {
        kovrel_tool::OutBuffer out;
        kovrel_tool::RecordFormatter formatter(out);
        kovrel_tool::RecordView view;
        view.input = input;
        view.block = block;
        view.where.offset = h_->offset;
        view.record = r_;
        view.number = number_;
        view.block_valid = h_->valid;
        formatter.json_line(view);
        std::string text(out.view());
        if (!text.empty() && text.back() == '\n') text.pop_back();
        return json_loads(text);
    }
    std::string detail_html() const {
        return grown_text([this](char *b, size_t n) { ast_datarecord_get_detail_html(b, n, r_); });
    }
    bool match(const std::string &keyword, const std::string &text, bool case_sensitive) const {
        return ast_datarecord_match_keyword(r_, keyword_id(keyword), text.c_str(), case_sensitive ? 1 : 0);
    }
    py::object keyword(const std::string &keyword) const {
        char buf[256];
        if (!ast_datarecord_get_keyword(buf, sizeof buf, r_, keyword_id(keyword), 0)) return py::none();
        return py::str(buf);
    }
    std::string repr() const {
        char head[96];
        std::snprintf(head, sizeof head, "<kovrel.Record CAT%03u #%zu %s, %llu items>", r_->category, number_,
                      r_->valid == 1 ? "valid" : "INVALID", static_cast<unsigned long long>(r_->item_count));
        return head;
    }

private:
    std::shared_ptr<BlockHolder> h_;
    const AstDataRecord *r_;
    size_t number_;
};

class Block {
public:
    Block(py::object data, size_t offset, const std::string &uap, bool strict) {
        h_ = std::make_shared<BlockHolder>();
        py::object view = py::module_::import("builtins").attr("memoryview")(data);
        if (view.attr("ndim").cast<int>() != 1 || view.attr("itemsize").cast<int>() != 1)
            view = view.attr("cast")("B");
        h_->owner = view;
        h_->info = std::make_unique<py::buffer_info>(py::buffer(view).request());
        h_->base = static_cast<const uint8_t *>(h_->info->ptr);
        const size_t size = static_cast<size_t>(h_->info->size);
        if (offset > size) throw py::index_error("offset beyond the octets");
        h_->offset = offset;
        const uint8_t *p = h_->base + offset;
        const size_t left = size - offset;
        if (left < 3) throw DecodeFailure(std::to_string(left) + " octets left, too few for a block header");
        const uint32_t len = static_cast<uint32_t>(p[1]) << 8 | p[2];
        if (len < 3) throw DecodeFailure("LEN " + std::to_string(len) + " is below 3");
        const kovrel_tool::BlockOutcome outcome =
            decoder_for(profile_of(uap)).decode(p, len <= left ? len : left);
        h_->block = *outcome.block;
        h_->valid = outcome.valid;
        h_->reason = outcome.valid ? "" : outcome.reason;
        if (!outcome.valid && len > left && outcome.reason.empty()) h_->reason = "LEN beyond the octets available";
        if (outcome.failed) {
            h_->has_failed = true;
            h_->failed_index = outcome.failed->index;
            h_->failed = outcome.failed->record;
        }
        if (strict && !outcome.valid) throw DecodeFailure(h_->reason);
    }
    uint32_t category() const { return h_->block.category; }
    size_t length() const { return static_cast<size_t>(h_->block.length); }
    size_t offset() const { return h_->offset; }
    bool valid() const { return h_->valid; }
    std::string reason() const { return h_->reason; }
    py::object data() const {
        const size_t size = static_cast<size_t>(h_->info->size) - h_->offset;
        return h_->span(h_->base + h_->offset, h_->block.length <= size ? h_->block.length : size);
    }
    std::vector<Record> records() const {
        std::vector<Record> out;
        const AstDataBlock &b = h_->block;
        for (uint64_t i = 0; i < b.record_count && i < AST_DATABLOCK_MAX_RECORDS; ++i)
            out.emplace_back(h_, &b.records[i], static_cast<size_t>(i) + 1);
        if (h_->has_failed) out.emplace_back(h_, &h_->failed, h_->failed_index + 1);
        return out;
    }
    std::string repr() const {
        char head[96];
        std::snprintf(head, sizeof head, "<kovrel.Block CAT%03u LEN %llu, %llu records%s>", h_->block.category,
                      static_cast<unsigned long long>(h_->block.length),
                      static_cast<unsigned long long>(h_->block.record_count), h_->valid ? "" : ", INVALID");
        return head;
    }

private:
    std::shared_ptr<BlockHolder> h_;
};

}  // namespace
}  // namespace kovrel_py

PYBIND11_MODULE(_kovrel, m) {
    using namespace kovrel_py;
    m.doc() = "The kovrel library's bindings; use the kovrel package.";
    // Problems reach Python as exceptions and warnings, not as log lines.
    kovrel_tool::set_library_log(nullptr);
    static PyObject *decode_error = PyErr_NewExceptionWithDoc(
        "kovrel.DecodeError", "Octets that are not a data block; the message is the decoder's reason.",
        PyExc_ValueError, nullptr);
    m.add_object("DecodeError", py::reinterpret_borrow<py::object>(decode_error));
    py::register_exception_translator([](std::exception_ptr p) {
        try {
            if (p) std::rethrow_exception(p);
        } catch (const DecodeFailure &e) {
            PyErr_SetString(decode_error, e.what());
        }
    });

    m.def("library_version", []() { return std::string(ast_library_version()); });
    m.def("profiles", []() {
        std::vector<std::string> out;
        for (const auto &p : kovrel_tool::profiles()) out.emplace_back(p.name);
        return out;
    });
    m.def("default_columns", &kovrel_tool::default_csv_columns);
    m.def("keywords", []() {
        std::vector<std::string> out;
        for (const auto &[k, v] : keyword_ids()) out.push_back(k);
        return out;
    });

    py::class_<Reader>(m, "Reader")
        .def(py::init<const std::string &>(), py::arg("uap") = "auto")
        .def("add_filter", &Reader::add_filter)
        .def("set_framing", &Reader::set_framing)
        .def("open_path", &Reader::open_path)
        .def("open_fd", &Reader::open_fd)
        .def("open_buffer", &Reader::open_buffer)
        .def("next_json", &Reader::next_json, py::arg("records") = 256)
        .def("messages", &Reader::messages)
        .def("columns", &Reader::columns);

    m.def("encode_lines", &encode_lines, py::arg("lines"), py::arg("block_records") = 64);

    py::class_<Item>(m, "Item", "One item of a record; its octets stay in the buffer the block was read from.")
        .def_property_readonly("id", &Item::id)
        .def_property_readonly("name", &Item::name)
        .def_property_readonly("valid", &Item::valid)
        .def_property_readonly("length", &Item::length)
        .def_property_readonly("data", &Item::data, "The item's octets: a memoryview of the caller's buffer.")
        .def_property_readonly("hex", &Item::hex)
        .def_property_readonly("summary", &Item::summary)
        .def_property_readonly("detail_html", &Item::detail_html)
        .def_property_readonly("fields", &Item::fields, "The item's values by name, or None without a description.")
        .def("__len__", &Item::length)
        .def("__repr__", &Item::repr);

    py::class_<Record>(m, "Record", "One record of a block.")
        .def_property_readonly("category", &Record::category)
        .def_property_readonly("valid", &Record::valid)
        .def_property_readonly("length", &Record::length)
        .def_property_readonly("number", &Record::number)
        .def_property_readonly("uap", &Record::uap)
        .def_property_readonly("data", &Record::data)
        .def_property_readonly("items", &Record::items)
        .def_property_readonly("fields", &Record::fields)
        .def_property_readonly("detail_html", &Record::detail_html)
        .def("item", &Record::item, py::arg("id"))
        .def("__getitem__", &Record::item)
        .def("__contains__", &Record::has_item)
        .def("__len__", &Record::item_count)
        .def("__iter__", [](const Record &r) { return py::iter(py::cast(r.items())); })
        .def("to_dict", &Record::to_dict, py::arg("input") = "(memory)", py::arg("block") = 1)
        .def("match", &Record::match, py::arg("keyword"), py::arg("text"), py::arg("case_sensitive") = false)
        .def("keyword", &Record::keyword, py::arg("keyword"))
        .def("__repr__", &Record::repr);

    py::class_<Block>(m, "Block", "One data block decoded from a buffer, without copying its octets.")
        .def(py::init<py::object, size_t, const std::string &, bool>(), py::arg("data"), py::arg("offset") = 0,
             py::arg("uap") = "auto", py::arg("strict") = true)
        .def_property_readonly("category", &Block::category)
        .def_property_readonly("length", &Block::length)
        .def_property_readonly("offset", &Block::offset)
        .def_property_readonly("valid", &Block::valid)
        .def_property_readonly("reason", &Block::reason)
        .def_property_readonly("data", &Block::data)
        .def_property_readonly("records", &Block::records)
        .def("__len__", [](const Block &b) { return b.records().size(); })
        .def("__iter__", [](const Block &b) { return py::iter(py::cast(b.records())); })
        .def("__getitem__", [](const Block &b, py::ssize_t i) {
            auto r = b.records();
            const py::ssize_t n = static_cast<py::ssize_t>(r.size());
            if (i < 0) i += n;
            if (i < 0 || i >= n) throw py::index_error("record index out of range");
            return r[static_cast<size_t>(i)];
        })
        .def("__repr__", &Block::repr);
}
