#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace ruvenmark {

inline constexpr std::string_view kTileTables =
    "CREATE TABLE metadata (name text, value text);"
    "CREATE TABLE tiles (zoom_level integer, tile_column integer, tile_row integer, tile_data blob);";

// Asked for a tile, it looks at 16 million million rows; opened, at none.
inline std::string SlowArchive()
{
    std::string text = "CREATE TABLE n (i); CREATE TABLE metadata (name, value);"
                       "INSERT INTO metadata VALUES ('maxzoom', 3); BEGIN;";
    for (int i = 0; i < 2000; ++i)
        text += "INSERT INTO n VALUES (1);";
    return text +
           "COMMIT; CREATE VIEW tiles AS SELECT 1 AS zoom_level, 0 AS tile_column, 1 AS tile_row, a.i AS tile_data "
           "FROM n a, n b, n c, n d WHERE a.i + b.i + c.i + d.i < 0;";
}

// Makes a file of what the statements say.
inline void WriteArchive(const std::string& path, const std::string& statements)
{
    std::filesystem::remove(path);
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    char* problem = nullptr;
    EXPECT_EQ(sqlite3_exec(database, statements.c_str(), nullptr, nullptr, &problem), SQLITE_OK) << problem;
    sqlite3_free(problem);
    sqlite3_close(database);
}

inline std::string InsertTile(int zoom, int column, int row, std::string_view bytes)
{
    constexpr std::string_view kHex = "0123456789abcdef";
    std::string literal;
    for (const char c : bytes)
        literal.append({kHex[static_cast<unsigned char>(c) >> 4U], kHex[static_cast<unsigned char>(c) & 15U]});
    return "INSERT INTO tiles VALUES (" + std::to_string(zoom) + ", " + std::to_string(column) + ", " +
           std::to_string(row) + ", X'" + literal + "');";
}

} // namespace ruvenmark
