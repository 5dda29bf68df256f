#pragma once

#include "platform/event.h"
#include "platform/geometry.h"
#include "platform/hash_index.h"
#include "platform/map_region.h"
#include "platform/map_style.h"
#include "platform/slot_pool.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

class Map;

inline constexpr std::int32_t kLastMapStyle = static_cast<std::int32_t>(kMapStyles.size()) - 1;
inline constexpr std::int32_t kLastMapFont = 4; // The smallest.
inline constexpr double kMinZoom = 1, kMaxZoom = 19;
// Of a new map.
inline constexpr std::int32_t kFirstMapStyle = NumberOf(MapStyle::Road);
inline constexpr std::int32_t kFirstMapFont = 2;
inline constexpr double kFirstZoom = 4; // Of a document that tells none.
inline constexpr std::int32_t kUnitsMiles = 0;
inline constexpr std::int32_t kShapeRadiusCircle = 1009;
inline constexpr std::int16_t kDefaultSymbol = 1;
inline constexpr char kTrailMark = '*';         // Ends the name of a marker that a moving station left behind.
inline constexpr std::uint32_t kColorRed = 255; // Colours are 24-bit numbers with red in the low byte.
inline constexpr std::uint32_t kDefaultLineColor = 0xC03020;

// The handles below are values that may be kept as long as one likes, but not longer than the MapControl. Every use of
// one whose object is gone, or whose map was replaced, raises Failure.

class Location {
public:
    double Lat() const { return m_point.lat; }
    double Lon() const { return m_point.lon; }
    GeoPoint Point() const { return m_point; }
    void GoTo() const; // Centres the map here at the present zoom.

private:
    friend class Map;
    friend class Pushpin;
    Location(Map& map, std::uint64_t serial, GeoPoint point) : m_map(&map), m_serial(serial), m_point(point) {}

    Map* m_map;
    std::uint64_t m_serial;
    GeoPoint m_point;
};

// Makes notes that change with every report and are read seldom, when they are read.
class INoteMaker {
public:
    INoteMaker() = default;
    INoteMaker(const INoteMaker&) = delete;
    INoteMaker& operator=(const INoteMaker&) = delete;
    virtual ~INoteMaker() = default;

    // Nothing where it knows no marker of this name; the note is the one it had before.
    virtual std::optional<std::string> Note(std::uint8_t source, std::string_view name) const = 0;
    // What all notes of the source begin with.
    virtual std::string_view Beginning(std::uint8_t source) const = 0;
};
inline constexpr std::uint8_t kOwnNote = 0; // Not made by anyone.

class Pushpin {
public:
    const std::string& Name() const;
    void SetName(std::string_view name);
    ruvenmark::Location Location() const;
    void SetLocation(const ruvenmark::Location& location);
    std::string Note() const; // Lines end in CR LF.
    bool NoteBeginsWith(std::string_view text) const;
    void SetNote(std::string_view note);
    // From now on the note is what the map's maker of notes says of this source when somebody reads it, until it is set
    // or settled. A new name settles it.
    void SetNoteSource(std::uint8_t source);
    void SettleNote(); // It stays as it is now.
    std::int16_t Symbol() const;
    void SetSymbol(std::int16_t symbol);
    std::int32_t BalloonState() const; // 1 shows the name, 0 nothing.
    void SetBalloonState(std::int32_t state);
    std::uint32_t Heard() const; // Seconds since 1970 of the last report; 0: not known.
    void SetHeard(std::int64_t seconds);
    void Delete();

    SlotRef Ref() const { return m_ref; }
    friend bool operator==(const Pushpin&, const Pushpin&) = default;

private:
    friend class Map;
    Pushpin(Map& map, SlotRef ref) : m_map(&map), m_ref(ref) {}

    Map* m_map;
    SlotRef m_ref;
};

class Shape {
public:
    void SetForeColor(std::uint32_t color);
    void SetVisible(bool bVisible);
    void SetWeight(std::int32_t weight); // Pixels.
    void SetBeginArrowhead(bool bArrow);
    void SetEndArrowhead(bool bArrow);
    void Delete();

    SlotRef Ref() const { return m_ref; }
    friend bool operator==(const Shape&, const Shape&) = default;

private:
    friend class Map;
    Shape(Map& map, SlotRef ref) : m_map(&map), m_ref(ref) {}

    Map* m_map;
    SlotRef m_ref;
};

// What the map holds, for painters and files; the logic uses the handles.
struct PinData {
    std::string name, note;
    GeoPoint point;
    std::int32_t balloonState = 0;
    std::int16_t symbol = kDefaultSymbol;
    std::uint8_t noteSource = kOwnNote; // Who makes the note; `note` is then what it was before.
    std::uint32_t heard = 0;            // Seconds since 1970; 0: not known. No file keeps it.
    // Slots of pins of one name, oldest first, in a ring: the oldest one's previous is the newest.
    std::uint32_t previousOfName = 0, nextOfName = 0;
};
struct ShapeData {
    enum class Kind : std::uint8_t { Line, Circle };
    Kind kind = Kind::Line;
    GeoPoint from, to;            // A circle has its centre in `from`.
    double width = 0, height = 0; // Of a circle, in miles: the radius, passed as both.
    std::uint32_t foreColor = kDefaultLineColor;
    std::int32_t weight = 1; // Pixels; a visible line of weight 0 is drawn as thin as can be.
    bool bVisible = true;
    bool bBeginArrowhead = false;
    bool bEndArrowhead = false;
};
// A pin as painters read it, by slot: a look at a million of them stays within a few milliseconds.
struct PinPoint {
    std::uint32_t x = 0, y = 0; // Web Mercator in units of 2^-32 of the world.
    std::int16_t symbol = kDefaultSymbol;
    bool bLive : 1 = false;
    bool bBalloon : 1 = false;
    bool bTrail : 1 = false; // Left behind by a moving station.
};

// The one open map. It is replaced in place: handles of the former map die, the object stays.
class Map {
public:
    Map() = default;
    Map(const Map&) = delete;
    Map& operator=(const Map&) = delete;

    // Raises Failure for a latitude or longitude that is not on the earth (or no number).
    Location GetLocation(double lat, double lon, double altitude = 0);
    double Distance(const Location& from, const Location& to) const; // Miles.

    // The oldest pin of exactly this name. One that a hint names, as it was found before, is found without a search.
    std::optional<Pushpin> FindPushpin(std::string_view name, SlotRef hint = {});
    // What a hint names will be needed.
    void Expect(SlotRef hint) const;
    Pushpin AddPushpin(const Location& location, std::string_view name);
    Shape AddLine(const Location& from, const Location& to);
    Shape AddShape(std::int32_t type, const Location& centre, double width, double height);

    std::int32_t DataSetCount() const { return m_bPinEverAdded ? 1 : 0; }
    std::int32_t RecordCount() const { return static_cast<std::int32_t>(m_pins.Count()); }
    std::vector<Pushpin> AllRecords(); // As they stand now, oldest first.

    bool Saved() const { return m_bSaved; }
    void SetSaved(bool bSaved) { m_bSaved = bSaved; }
    std::int32_t MapStyle() const { return m_style; }
    void SetMapStyle(std::int32_t style); // 0 to kLastMapStyle; anything else raises Failure.
    std::int32_t MapFont() const { return m_font; }
    void SetMapFont(std::int32_t font); // 0 to kLastMapFont; anything else raises Failure.

    const MapView& View() const { return m_view; }
    void SetView(GeoPoint centre, double zoom); // Clamped to the world and to the zooms there are.
    void SetSize(int width, int height);
    Location XYToLocation(double x, double y);
    std::int32_t LocationToX(const Location& location) const;
    std::int32_t LocationToY(const Location& location) const;
    std::int32_t Width() const { return m_view.width; }
    std::int32_t Height() const { return m_view.height; }

    void SetNoteMaker(const INoteMaker* maker) { m_noteMaker = maker; }
    std::string NoteOf(const PinData& pin) const;
    void SettleNote(PinData& pin) const; // Of a copy as well.
    void SettleNotes(std::uint8_t source);

    // For painters and files.
    const SlotPool<PinData>& Pins() const { return m_pins; }
    const SlotPool<ShapeData>& Shapes() const { return m_shapes; }
    const std::vector<PinPoint>& PinPoints() const { return m_points; } // By slot; dead slots too.
    // The handle of what stands in a slot; raises Failure for an empty slot.
    Pushpin PinAt(std::size_t slot);
    Shape ShapeAt(std::size_t slot);

    Event<> Changed;     // Something that is painted.
    Event<> ViewChanged; // Centre, zoom or size.

private:
    friend class MapControl;
    friend class Location;
    friend class Pushpin;
    friend class Shape;

    void Replace(std::int32_t region);
    void Touch();
    void CheckSerial(const Location& location) const;
    PinData& Pin(SlotRef ref);
    ShapeData& ShapeOf(SlotRef ref);
    void MarkPlace(SlotRef ref, const PinData& pin);
    void MarkLook(SlotRef ref, const PinData& pin);
    bool IsOldestOfName(SlotRef ref) const;
    void LinkName(SlotRef ref);
    void UnlinkName(SlotRef ref);

    // The slot of the oldest pin of the name.
    const std::uint32_t* OldestOfName(std::string_view name) const;

    SlotPool<PinData> m_pins;
    SlotPool<ShapeData> m_shapes;
    std::vector<PinPoint> m_points;
    HashIndex<std::uint32_t> m_names; // Of slots: the oldest pin of each name.
    const INoteMaker* m_noteMaker = nullptr;
    MapView m_view;
    std::uint64_t m_serial = 0;
    std::int32_t m_style = kFirstMapStyle;
    std::int32_t m_font = kFirstMapFont;
    bool m_bSaved = true;
    bool m_bPinEverAdded = false;
};

} // namespace ruvenmark
