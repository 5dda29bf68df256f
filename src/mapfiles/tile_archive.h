#pragma once

#include "mapfiles/tile_source.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace ruvenmark {

// A tile archive: one SQLite file with the pictures of many tiles (MBTiles 1.3). The file may be anybody's: it runs no
// code of its own, and no answer takes longer or more room than told.
class TileArchive final : public ITileSource {
public:
    // Raises Failure where the file is no such archive, holds no pictures or takes longer than `patience` to open.
    explicit TileArchive(const std::string& path, std::chrono::milliseconds patience = std::chrono::seconds(2));
    ~TileArchive() override;

    std::string Read(TileId tile) override;
    int MaxZoom() const override { return m_maxZoom; }
    std::string Attribution() const override { return m_attribution; }
    void Stop() override { m_bStopped = true; }

private:
    struct CloseDatabase {
        void operator()(sqlite3* database) const;
    };
    struct CloseStatement {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, CloseStatement>;

    void Restrain();
    void RefuseVirtualTables();
    void ReadMaxZoom();
    std::string Metadata(std::string_view name);
    Statement Prepare(std::string_view sql);
    bool Step(sqlite3_stmt& statement); // Whether there is a row.
    static int IsOver(void* archive);
    [[noreturn]] void Fail() const;

    std::chrono::milliseconds m_patience; // For opening, and for each tile.
    std::chrono::steady_clock::time_point m_end;
    std::atomic<bool> m_bStopped = false;
    std::unique_ptr<sqlite3, CloseDatabase> m_database; // Goes after its statement.
    Statement m_tile;
    std::string m_attribution;
    int m_maxZoom = 0;
};

} // namespace ruvenmark
