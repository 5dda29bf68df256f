#pragma once

#include <QRectF>
#include <QRegion>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <tuple>
#include <vector>

namespace ruvenmark {

// A picture or a text on the map, and where it stands.
struct SceneMark {
    enum class Kind : std::uint8_t { Marker, Name, Place };
    Kind kind = Kind::Marker;
    std::size_t number = 0; // Tells those of a kind apart.
    std::size_t look = 0;   // Another one where it looks otherwise.
    double left = 0, top = 0, width = 0, height = 0;

    auto Whole() const { return std::tie(kind, number, look, left, top, width, height); }
    friend bool operator<(const SceneMark& a, const SceneMark& b) { return a.Whole() < b.Whole(); }
};

// What stands on a picture of the map, to tell in which places the next picture is another one.
class SceneMarks {
public:
    void Add(SceneMark::Kind kind, std::size_t number, std::size_t look, const QRectF& rect)
    {
        m_marks.push_back({kind, number, look, rect.left(), rect.top(), rect.width(), rect.height()});
    }
    void Sort(); // After the last one.

    // Nothing: so many places that everything is painted as fast.
    static std::optional<QRegion> Difference(const SceneMarks& before, const SceneMarks& now);

private:
    std::vector<SceneMark> m_marks;
};

} // namespace ruvenmark
