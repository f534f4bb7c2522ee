#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

/// Writes JSON as harmless_json() has it in lines, one value after the other, with no tree of them:
/// entries have thousands of values. In an object each value has a name, which is written as it is;
/// elsewhere it has none. Everything that is begun must be ended.
class JsonWriter {
public:
    /// Writes behind `before`.
    explicit JsonWriter(std::string before = "") : json_(std::move(before)) {}

    void begin_object(const char* name = nullptr) { begin(name, '{'); }
    void end_object() { end('}'); }
    void begin_array(const char* name = nullptr) { begin(name, '['); }
    void end_array() { end(']'); }

    /// What is not UTF-8 is replaced.
    void add_text(const char* name, std::string_view text);
    void add_integer(const char* name, std::int64_t number);
    void add_number(const char* name, double number);
    void add_true(const char* name) { add_word(name, "true"); }
    void add_null(const char* name) { add_word(name, "null"); }

    /// What has been written, which this no longer has.
    std::string take() { return std::move(json_); }

private:
    void begin(const char* name, char bracket);
    void end(char bracket);
    void begin_value(const char* name);
    void begin_line(bool after_comma);
    void add_word(const char* name, std::string_view word);

    std::string json_;
    std::size_t depth_ = 0;
    bool is_first_ = true;  // of what was begun last
};
