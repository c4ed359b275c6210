// SPDX-License-Identifier: MIT
// Makes the template of new albums: make_template SCHEMA.sql ALBUM.tpl
#include <sqlcipher/sqlite3.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

std::string ReadAll(const char* path)
{
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return file ? text.str() : std::string();
}

bool WriteTemplate(const std::string& schema, const char* path)
{
    sqlite3* engine = nullptr;
    char* message = nullptr;
    const bool written = sqlite3_open(path, &engine) == SQLITE_OK &&
                         sqlite3_exec(engine, ("BEGIN;" + schema + "COMMIT;").c_str(), nullptr,
                                      nullptr, &message) == SQLITE_OK;
    if (!written)
        std::cerr << "make_template: " << (message ? message : sqlite3_errmsg(engine)) << '\n';
    sqlite3_free(message);
    return sqlite3_close(engine) == SQLITE_OK && written;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: make_template SCHEMA.sql ALBUM.tpl\n";
        return 2;
    }
    const std::string schema = ReadAll(argv[1]);
    if (schema.empty()) {
        std::cerr << "make_template: cannot read " << argv[1] << '\n';
        return 1;
    }
    std::remove(argv[2]);
    if (WriteTemplate(schema, argv[2]))
        return 0;
    std::remove(argv[2]);
    return 1;
}
