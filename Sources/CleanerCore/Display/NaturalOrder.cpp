#include "CleanerCore/Display/NaturalOrder.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <unicode/coll.h>
#include <unicode/locid.h>

namespace CleanerCore {

NaturalOrder::NaturalOrder() {
    UErrorCode status = U_ZERO_ERROR;
    collator.reset(icu::Collator::createInstance(
        icu::Locale::forLanguageTag(CoreL10n::currentLanguage(), status), status));
    if (U_FAILURE(status) || !collator) {
        status = U_ZERO_ERROR;
        collator.reset(icu::Collator::createInstance(icu::Locale::getRoot(), status));
    }
    if (collator) {
        collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
        collator->setStrength(icu::Collator::TERTIARY);
    }
}

NaturalOrder::~NaturalOrder() = default;

bool NaturalOrder::operator()(std::string_view a, std::string_view b) const {
    if (!collator)
        return a < b;
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result =
        collator->compareUTF8(icu::StringPiece(a.data(), static_cast<int32_t>(a.size())),
                              icu::StringPiece(b.data(), static_cast<int32_t>(b.size())), status);
    return U_SUCCESS(status) ? result == UCOL_LESS : a < b;
}

} // namespace CleanerCore
