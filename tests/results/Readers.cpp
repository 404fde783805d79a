#include "results/Readers.h"

#include <zlib.h>

#include <pugixml.hpp>
#include <stdexcept>

#include "imaging/ByteReader.h"
#include "support/TempFolder.h"

namespace tavrene::test {
namespace {

// One field from `at` on, which is left on the separator or line end behind it.
std::string TakeField(const std::string& text, std::size_t& at, char separator) {
    std::string field;
    if (at < text.size() && text[at] == '"') {
        for (++at; at < text.size(); ++at) {
            if (text[at] == '"' && text[++at] != '"')
                return field;
            field += text[at];
        }
        throw std::runtime_error("a quote is not closed");
    }
    while (at < text.size() && text[at] != separator && text[at] != '\r') {
        if (text[at] == '"' || text[at] == '\n')
            throw std::runtime_error("a bare quote or line feed");
        field += text[at++];
    }
    return field;
}

std::string Inflated(std::string packed, std::size_t size) {
    std::string plain(size, '\0');
    z_stream stream{};
    stream.next_in = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(plain.data());
    stream.avail_out = static_cast<uInt>(size);
    inflateInit2(&stream, -MAX_WBITS);
    const int result = inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    if (result != Z_STREAM_END)
        throw std::runtime_error("a part of the archive cannot be unpacked");
    return plain;
}

// The files of a zip archive, found by its central directory.
std::map<std::string, std::string> Unzip(const std::string& archive) {
    const imaging::ByteReader reader(std::as_bytes(std::span(archive)),
                                     imaging::ByteReader::Order::LittleEndian);
    const std::size_t end = archive.rfind("PK\x05\x06");
    std::uint64_t entry = reader.Number(end + 16, 4);
    std::map<std::string, std::string> files;
    for (std::uint64_t k = reader.Number(end + 10, 2); k > 0; --k) {
        const std::uint64_t name = reader.Number(entry + 28, 2);
        const std::uint64_t local = reader.Number(entry + 42, 4);
        const std::uint64_t data = local + 30 + reader.Number(local + 26, 2) + reader.Number(local + 28, 2);
        const std::string packed = archive.substr(data, reader.Number(entry + 20, 4));
        files[archive.substr(entry + 46, name)] =
            reader.Number(entry + 10, 2) == 0 ? packed : Inflated(packed, reader.Number(entry + 24, 4));
        entry += 46 + name + reader.Number(entry + 30, 2) + reader.Number(entry + 32, 2);
    }
    return files;
}

pugi::xml_document Parsed(const std::string& text) {
    pugi::xml_document document;
    if (!document.load_string(text.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single))
        throw std::runtime_error("a part of the archive is no XML");
    return document;
}

// "C7" stands in the third column.
std::size_t ColumnOf(const std::string& place) {
    std::size_t column = 0;
    for (const char c : place) {
        if (c >= 'A' && c <= 'Z')
            column = column * 26 + static_cast<std::size_t>(c - 'A' + 1);
    }
    return column - 1;
}

Lines CellsOf(const pugi::xml_document& sheet) {
    Lines lines;
    for (const pugi::xml_node row : sheet.child("worksheet").child("sheetData").children("row")) {
        lines.emplace_back();
        for (const pugi::xml_node cell : row.children("c")) {
            if (cell.child("f"))
                throw std::runtime_error("a formula");
            lines.back().resize(ColumnOf(cell.attribute("r").value()) + 1);
            lines.back().back() = cell.child("v") ? std::string(cell.child_value("v"))
                                                  : std::string("t:") + cell.child("is").child_value("t");
        }
    }
    return lines;
}

}  // namespace

Lines ReadCsv(const std::string& text, char separator) {
    Lines lines;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        lines.emplace_back(1, TakeField(text, at, separator));
        while (at < text.size() && text[at] == separator)
            lines.back().push_back(TakeField(text, ++at, separator));
        if (text.compare(at, 2, "\r\n") != 0)
            throw std::runtime_error("a line does not end in CR LF");
    }
    return lines;
}

std::map<std::string, Lines> ReadXlsx(const std::string& path) {
    const std::map<std::string, std::string> files = Unzip(ReadText(path));
    const pugi::xml_document book = Parsed(files.at("xl/workbook.xml"));
    std::map<std::string, Lines> sheets;
    for (const pugi::xml_node sheet : book.child("workbook").child("sheets").children("sheet")) {
        const std::string part = std::string("xl/worksheets/sheet") + sheet.attribute("sheetId").value();
        sheets[sheet.attribute("name").value()] = CellsOf(Parsed(files.at(part + ".xml")));
    }
    return sheets;
}

}  // namespace tavrene::test
