// Writes the project's own sample of packet traffic: one day of invented stations over North America and Europe.
// The same program writes the same file, always.

#include "sample_day.h"

#include <fstream>
#include <iostream>

int main(int count, char** arguments)
{
    if (count != 2) {
        std::cerr << "Usage: make_sample FILE\n";
        return 2;
    }
    ruvenmark::sample::SampleDay day;
    AddFixedStations(day);
    AddWeatherStations(day);
    AddMovingStations(day);
    AddTraffic(day);
    std::ofstream file(arguments[1], std::ios::binary);
    file << day.ToString();
    file.close();
    if (!file) {
        std::cerr << "make_sample: cannot write " << arguments[1] << '\n';
        return 2;
    }
    std::cout << day.Count() << " lines\n";
    return 0;
}
