#include "Arguments.hpp"

#include <charconv>

namespace ZephraneCli {

Arguments Arguments::parse(const std::vector<std::string>& words, const std::set<std::string>& switches,
                           const std::set<std::string>& options) {
    Arguments out;
    bool onlyPositionals = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (onlyPositionals || word.size() < 2 || !word.starts_with("--")) {
            out.positional.push_back(word);
            continue;
        }
        if (word == "--") {
            onlyPositionals = true;
            continue;
        }
        std::string name = word.substr(2);
        std::optional<std::string> inlineValue;
        if (auto eq = name.find('='); eq != std::string::npos) {
            inlineValue = name.substr(eq + 1);
            name.resize(eq);
        }
        if (switches.contains(name) && !inlineValue) {
            out.present.insert(name);
        } else if (options.contains(name)) {
            if (!inlineValue) {
                if (i + 1 >= words.size())
                    throw UsageError("option --" + name + " needs a value");
                inlineValue = words[++i];
            }
            out.present.insert(name);
            out.values[name] = *inlineValue;
        } else {
            throw UsageError("unknown option " + word);
        }
    }
    return out;
}

std::optional<std::string> Arguments::value(const std::string& name) const {
    if (auto it = values.find(name); it != values.end())
        return it->second;
    return std::nullopt;
}

long long Arguments::number(const std::string& name, long long fallback) const {
    auto text = value(name);
    if (!text)
        return fallback;
    long long result = 0;
    auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), result);
    if (error != std::errc() || end != text->data() + text->size() || result < 0)
        throw UsageError("--" + name + " takes a whole number, not '" + *text + "'");
    return result;
}

} // namespace ZephraneCli
