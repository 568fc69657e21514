#pragma once
// Plain C++ file calls for the benches: the stores they make and the floors
// they measure against go through these, never through the program.
#include <QString>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

inline void WriteFile(const QString& path, const std::string& bytes) {
    std::ofstream out(path.toStdString(), std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), std::streamsize(bytes.size()));
}

inline std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// The lines of a text ended by CR LF; what follows the last CR LF is left out.
inline std::vector<std::string> SplitCrLf(const std::string& text) {
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2)
        lines.push_back(text.substr(start, end - start));
    return lines;
}
