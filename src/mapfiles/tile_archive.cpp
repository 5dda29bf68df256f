#include "mapfiles/tile_archive.h"

#include "mapfiles/markup_text.h"
#include "mapfiles/regular_file.h"
#include "mapfiles/tile_picture.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <sqlite3.h>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kStepsBetweenLooks = 1000; // Of SQLite's machine, between two looks at the clock.
constexpr std::size_t kMostMetadata = 1000;

// Only reading, and none of the functions that a single call of can keep busy. Archives that keep equal pictures once
// have a view for the table of tiles, so views may be.
int Allow(void*, int action, const char*, const char* name, const char*, const char*)
{
    constexpr std::array<std::string_view, 4> kFunctions{"max", "coalesce", "ifnull", "length"};
    if (action == SQLITE_SELECT || action == SQLITE_READ)
        return SQLITE_OK;
    const bool bKnown =
        action == SQLITE_FUNCTION && name && std::find(kFunctions.begin(), kFunctions.end(), name) != kFunctions.end();
    return bKnown ? SQLITE_OK : SQLITE_DENY;
}

// Percent signs for everything that a URI gives a meaning. Immutable: neither locks nor journals beside the file are
// looked at, so nobody is waited for.
std::string Uri(std::string_view path)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '/' || c == '.' || c == '-')
            uri += c;
        else
            uri.append({'%', kHex[byte >> 4U], kHex[byte & 15U]});
    }
    return uri + "?mode=ro&immutable=1";
}

std::string Blob(sqlite3_stmt* statement)
{
    const void* bytes = sqlite3_column_blob(statement, 0); // Before the length is asked for.
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement, 0));
    return bytes ? std::string(static_cast<const char*>(bytes), length) : std::string();
}

} // namespace

void TileArchive::CloseDatabase::operator()(sqlite3* database) const
{
    sqlite3_close(database);
}

void TileArchive::CloseStatement::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

TileArchive::TileArchive(const std::string& path, std::chrono::milliseconds patience) : m_patience(patience)
{
    {
        const RegularFile file(path); // A pipe or a folder is a Failure.
    }
    sqlite3* database = nullptr;
    constexpr int kFlags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_FULLMUTEX;
    const int opened = sqlite3_open_v2(Uri(path).c_str(), &database, kFlags, nullptr);
    m_database.reset(database);
    if (opened != SQLITE_OK)
        throw Failure("The file cannot be opened.");
    m_end = std::chrono::steady_clock::now() + m_patience;
    Restrain();
    RefuseVirtualTables();
    if (Metadata("format") == "pbf")
        throw Failure("The file holds vector tiles, not pictures.");
    m_attribution = TextOfMarkup(Metadata("attribution"));
    ReadMaxZoom();
    m_tile = Prepare("SELECT tile_data FROM tiles WHERE zoom_level = ? AND tile_column = ? AND tile_row = ?");
}

TileArchive::~TileArchive() = default;

void TileArchive::Restrain()
{
    sqlite3* database = m_database.get();
    constexpr std::array<std::pair<int, int>, 3> kSwitches{{{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                                            {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                                            {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0}}};
    for (const auto& [which, value] : kSwitches)
        sqlite3_db_config(database, which, value, nullptr); // NOLINT(cppcoreguidelines-pro-type-vararg): SQLite's way.
    constexpr std::array<std::pair<int, int>, 5> kLimits{{{SQLITE_LIMIT_LENGTH, static_cast<int>(kMostTileBytes)},
                                                          {SQLITE_LIMIT_SQL_LENGTH, 20000},
                                                          {SQLITE_LIMIT_COLUMN, 100},
                                                          {SQLITE_LIMIT_EXPR_DEPTH, 50},
                                                          {SQLITE_LIMIT_ATTACHED, 0}}};
    for (const auto& [which, value] : kLimits)
        sqlite3_limit(database, which, value);
    sqlite3_set_authorizer(database, Allow, nullptr);
    sqlite3_progress_handler(database, kStepsBetweenLooks, IsOver, this);
}

// They bring code of their own that reads the file's tables its own way.
void TileArchive::RefuseVirtualTables()
{
    const Statement statement = Prepare("SELECT 1 FROM sqlite_master WHERE type = 'table' AND rootpage IS NOT NULL AND "
                                        "rootpage < 1 LIMIT 1");
    if (Step(*statement))
        throw Failure("The file is no plain tile archive.");
}

void TileArchive::ReadMaxZoom()
{
    const auto told = ReadNumber(Metadata("maxzoom"));
    if (told && *told >= 0) {
        m_maxZoom = static_cast<int>(std::min(*told, double{kDeepestTileZoom}));
        return;
    }
    const Statement statement = Prepare("SELECT MAX(zoom_level) FROM tiles");
    if (!Step(*statement) || sqlite3_column_type(statement.get(), 0) == SQLITE_NULL)
        throw Failure("The file holds no tiles.");
    m_maxZoom = std::clamp(sqlite3_column_int(statement.get(), 0), 0, kDeepestTileZoom);
}

// Empty, too, where the archive has no such table.
std::string TileArchive::Metadata(std::string_view name)
{
    const Statement table = Prepare("SELECT 1 FROM sqlite_master WHERE name = 'metadata'");
    if (!Step(*table))
        return {};
    const Statement statement = Prepare("SELECT value FROM metadata WHERE name = ? LIMIT 1");
    sqlite3_bind_text(statement.get(), 1, name.data(), static_cast<int>(name.size()), SQLITE_STATIC);
    if (!Step(*statement))
        return {};
    const unsigned char* text = sqlite3_column_text(statement.get(), 0);
    return text ? std::string(reinterpret_cast<const char*>(text)).substr(0, kMostMetadata) : std::string();
}

TileArchive::Statement TileArchive::Prepare(std::string_view sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_database.get(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr) !=
        SQLITE_OK)
        Fail();
    return Statement(statement);
}

bool TileArchive::Step(sqlite3_stmt& statement)
{
    const int result = sqlite3_step(&statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        Fail();
    return result == SQLITE_ROW;
}

int TileArchive::IsOver(void* archive)
{
    const auto* self = static_cast<const TileArchive*>(archive);
    return self->m_bStopped || std::chrono::steady_clock::now() > self->m_end ? 1 : 0;
}

void TileArchive::Fail() const
{
    switch (sqlite3_errcode(m_database.get())) {
    case SQLITE_INTERRUPT:
        throw Failure("The tile archive takes too long to answer.");
    case SQLITE_TOOBIG:
        throw Failure("The tile archive holds something too large for a tile.");
    default:
        throw Failure(std::string("The file is no tile archive that can be used: ") + sqlite3_errmsg(m_database.get()));
    }
}

std::string TileArchive::Read(TileId tile)
{
    const struct Reset {
        sqlite3_stmt* statement;
        ~Reset() { sqlite3_reset(statement); }
    } reset{m_tile.get()};
    m_end = std::chrono::steady_clock::now() + m_patience;
    sqlite3_bind_int(m_tile.get(), 1, tile.z);
    sqlite3_bind_int(m_tile.get(), 2, tile.x);
    sqlite3_bind_int(m_tile.get(), 3, (1 << tile.z) - 1 - tile.y); // Its rows count from the south.
    return Step(*m_tile) ? Blob(m_tile.get()) : std::string();
}

} // namespace ruvenmark
