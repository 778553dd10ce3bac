#include "CleanerCore/Display/NaturalOrder.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <memory>

namespace CleanerCore::NaturalOrder {
namespace {

std::unique_ptr<icu::Collator> makeCollator(const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(icu::Locale::createCanonical(locale.c_str()), status));
    if (U_FAILURE(status) || !collator)
        return nullptr;
    collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    collator->setAttribute(UCOL_STRENGTH, UCOL_TERTIARY, status);
    return collator;
}

} // namespace

int compare(std::string_view a, std::string_view b, const std::optional<std::string>& locale) {
    // A collator is costly to make and not meant to be shared between threads: one per thread,
    // made again only when the language changes.
    thread_local std::string collatorLocale;
    thread_local std::unique_ptr<icu::Collator> collator;
    const std::string wanted = locale && !locale->empty() ? *locale : CoreL10n::currentLanguage();
    if (!collator || collatorLocale != wanted) {
        collator = makeCollator(wanted);
        collatorLocale = wanted;
    }
    if (!collator)
        return a.compare(b);
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result =
        collator->compareUTF8(icu::StringPiece(a.data(), static_cast<int32_t>(a.size())),
                              icu::StringPiece(b.data(), static_cast<int32_t>(b.size())), status);
    if (U_FAILURE(status))
        return a.compare(b);
    return result == UCOL_LESS ? -1 : result == UCOL_GREATER ? 1 : 0;
}

} // namespace CleanerCore::NaturalOrder
