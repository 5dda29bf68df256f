#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

// Writes packets as radios and stations do: for benchmarks, for the sample file, and for tests that read them back.
namespace ruvenmark::packet_text {

struct Place {
    double lat = 0, lon = 0; // Degrees.
};
struct Movement {
    int course = 0; // Degrees, 1 to 360; 0 is unknown.
    int knots = 0;
};

std::string Join(std::initializer_list<std::string_view> pieces);
std::string Digits(int value, int width);

// "KAAAA" and on: as many as the letters give.
std::string Call(int station);

// "4903.50N/07201.75W>"; the symbol is the table or overlay, then the code.
std::string PlainPosition(Place place, std::string_view symbol);
// "/5L!!<*e7>7P[" with course and speed.
std::string CompressedPosition(Place place, std::string_view symbol, Movement movement);
// "088/036"
std::string CourseSpeed(Movement movement);
// "/A=001234"
std::string Altitude(int feet);

// The two halves of a Mic-E packet. `message` is 0 (off duty) to 6 (priority).
std::string MicEDestination(Place place, int message);
std::string MicEBody(Place place, std::string_view symbol, Movement movement);
// "\"4T}"
std::string MicEAltitude(int metres);

// Base-91 telemetry between bars: a sequence number and two values.
std::string CommentTelemetry(int sequence, int first, int second);
// Two more digits of a position, "!w..!".
std::string Dao(Place place);

} // namespace ruvenmark::packet_text
