#pragma once

namespace ruvenmark {

// Members of a map file that its reader and its writer have to spell alike; GeoJSON knows nothing of them.
inline constexpr const char* kOwnMember = "ruvenmark"; // Of the collection: what concerns the map as a whole.
inline constexpr const char* kLatin1 = "latin1"; // Names the texts that are bytes and no UTF-8, written as Latin-1.

} // namespace ruvenmark
