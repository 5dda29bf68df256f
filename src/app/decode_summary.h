#pragma once

#include "aprs/packet.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace ruvenmark {

// How many packets there were of each type, and how many lines were refused and why.
class DecodeSummary {
public:
    void Add(const aprs::Packet& packet);
    // A table for people, most frequent first.
    std::string ToString() const;

private:
    std::map<std::string_view, std::uint64_t> m_types;
    std::map<std::string_view, std::uint64_t> m_reasons;
};

} // namespace ruvenmark
