#include "Arguments.hpp"
#include "Cli.hpp"
#include "MessageLocale.hpp"

#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <ostream>

namespace ZephraneCli {

// What the removal engine would do with each path, without removing anything: "allowed" and the
// path removal would act on, or "refused" and why. Relative paths are taken from the current folder.
int runGuard(const std::vector<std::string>& words, const Streams& streams) {
    std::ostream& out = streams.out;
    const Arguments arguments = Arguments::parse(words, {}, {});
    if (arguments.positionals().empty())
        throw UsageError("no path given");
    const char* home = std::getenv("HOME");
    if (!home || home[0] != '/')
        throw UsageError("HOME must be set to an absolute path");
    const std::string locale = messageLocale();
    for (const std::string& path : arguments.positionals()) {
        std::error_code error;
        const std::filesystem::path absolute = std::filesystem::absolute(path, error);
        const std::string written = error || path.empty() ? path : absolute.string();
        try {
            const CleanerCore::URL target =
                CleanerCore::SafetyGuard::check(CleanerCore::URL::file(written), CleanerCore::URL::file(home),
                                                CleanerCore::SafetyGuard::runningAppBundle());
            out << "allowed " << target.path() << '\n';
        } catch (const CleanerCore::SafetyGuard::Refusal& refusal) {
            out << "refused " << refusal.localizedDescription(locale) << '\n';
        }
    }
    return 0;
}

} // namespace ZephraneCli
