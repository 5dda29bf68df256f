#include "desktop/map/scene/scene_marks.h"

#include <algorithm>
#include <iterator>

namespace ruvenmark {

namespace {

constexpr std::size_t kMostPlaces = 120;

} // namespace

void SceneMarks::Sort()
{
    std::sort(m_marks.begin(), m_marks.end());
}

std::optional<QRegion> SceneMarks::Difference(const SceneMarks& before, const SceneMarks& now)
{
    std::vector<SceneMark> changed;
    std::set_symmetric_difference(before.m_marks.begin(), before.m_marks.end(), now.m_marks.begin(), now.m_marks.end(),
                                  std::back_inserter(changed));
    if (changed.size() > kMostPlaces)
        return std::nullopt;
    QRegion region;
    for (const SceneMark& mark : changed) // Pictures are moved to whole device pixels.
        region += QRectF(mark.left, mark.top, mark.width, mark.height).toAlignedRect().adjusted(-2, -2, 2, 2);
    return region;
}

} // namespace ruvenmark
