#pragma once

#include <string>
#include <string_view>

namespace CleanerCore::ReleaseNotesText {

// Plain text for a feed item's HTML notes: scripts and styles dropped, breaks, paragraphs and list
// items turned into lines and bullets, every other tag removed, entities decoded once, blanks and
// empty lines collapsed. A small cleaner on purpose: nothing in the notes is ever loaded or run.
std::string plainText(std::string_view html);

// The common named entities and numeric character references; anything else stays as written.
std::string decodeEntities(std::string_view text);

} // namespace CleanerCore::ReleaseNotesText
