#include "desktop/icons/icon_set.h"

#include "desktop/icons/svg_icon_engine.h"
#include "desktop/icons/svg_picture.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

// The pictures lie in a static library, whose resources nobody would load otherwise. The macro works only outside a
// namespace.
static void LoadResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace ruvenmark {
namespace {

QString Folder(const char* name)
{
    return QStringLiteral(":/ruvenmark/icons/") + QLatin1String(name);
}

QStringList Files(const char* folder)
{
    return QDir(Folder(folder)).entryList({QStringLiteral("*.svg")}, QDir::Files);
}

QString BaseName(const QString& file)
{
    return file.chopped(4);
}

QIcon Icon(const QString& path, const IconColors& colors)
{
    return QIcon(new SvgIconEngine(path, colors));
}

} // namespace

IconSet::IconSet()
{
    LoadResources();
    // On a selected row only the shape speaks: its own colour might be that of the row.
    const IconColors tree{
        .normal = {}, .disabled = {}, .selected = QGuiApplication::palette().color(QPalette::HighlightedText)};
    for (const QString& file : Files("tree"))
        m_tree.emplace(BaseName(file).toStdString(), Icon(Folder("tree/") + file, tree));
    for (const QString& file : Files("map"))
        m_map.emplace(BaseName(file).toInt(), Folder("map/") + file);
}

QIcon IconSet::Tree(std::string_view key) const
{
    const auto found = m_tree.find(key);
    return found != m_tree.end() ? found->second : m_tree.find(std::string_view("Default"))->second;
}

QIcon IconSet::Action(const QString& name, const QPalette& palette) const
{
    const QString path = Folder("actions/") + name + QStringLiteral(".svg");
    if (!QFile::exists(path))
        return {};
    return Icon(path, {.normal = palette.color(QPalette::Active, QPalette::ButtonText),
                       .disabled = palette.color(QPalette::Disabled, QPalette::ButtonText),
                       .selected = palette.color(QPalette::Active, QPalette::HighlightedText)});
}

QIcon IconSet::Program() const
{
    return Icon(Folder("ruvenmark.svg"), {});
}

const MapAtlas& IconSet::Atlas(int size, qreal ratio)
{
    const std::pair key(size, ratio);
    if (const auto kept = m_atlases.find(key); kept != m_atlases.end())
        return kept->second;
    const int cell = qRound(size * ratio);
    std::map<int, QPixmap> pictures;
    for (const auto& [number, path] : m_map)
        pictures.emplace(number, SvgPicture(path).Draw(cell));
    return m_atlases.emplace(key, MapAtlas(pictures, cell, kDefaultMapPicture, ratio)).first->second;
}

std::vector<std::string> IconSet::TreeKeys() const
{
    std::vector<std::string> keys;
    for (const auto& [key, icon] : m_tree)
        keys.push_back(key);
    return keys;
}

std::vector<int> IconSet::MapNumbers() const
{
    std::vector<int> numbers;
    for (const auto& [number, path] : m_map)
        numbers.push_back(number);
    return numbers;
}

std::vector<QString> IconSet::ActionNames() const
{
    std::vector<QString> names;
    for (const QString& file : Files("actions"))
        names.push_back(BaseName(file));
    return names;
}

} // namespace ruvenmark
