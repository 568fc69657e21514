#pragma once
// Plain C++ file calls for the benches: the stores they make and the floors
// they measure against go through these, never through the program. A file
// is read in one read of its whole length and written in one write.
#include <QString>
#include <unistd.h>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

// A pause before every open of the floors, as a drive that answers slowly
// would make it; 0 (the default) for none.
inline int& FloorOpenDelayMicros() {
    static int micros = 0;
    return micros;
}

inline void FloorOpenPause() {
    if (FloorOpenDelayMicros() > 0) ::usleep(useconds_t(FloorOpenDelayMicros()));
}

inline void WriteFile(const std::string& path, const std::string& bytes) {
    FloorOpenPause();
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), std::streamsize(bytes.size()));
}

inline void WriteFile(const QString& path, const std::string& bytes) { WriteFile(path.toStdString(), bytes); }

// The whole file, or empty text when it can't be opened.
inline std::string ReadFile(const std::string& path) {
    FloorOpenPause();
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    if (!in) return {};
    std::string bytes(size_t(in.tellg()), '\0');
    in.seekg(0);
    in.read(bytes.data(), std::streamsize(bytes.size()));
    return bytes;
}

// The lines of a text ended by CR LF; what follows the last CR LF is left out.
inline std::vector<std::string_view> SplitCrLf(std::string_view text) {
    std::vector<std::string_view> lines;
    size_t start = 0;
    for (size_t end; (end = text.find("\r\n", start)) != std::string_view::npos; start = end + 2)
        lines.push_back(text.substr(start, end - start));
    return lines;
}
// The lines would point into a text that is gone.
std::vector<std::string_view> SplitCrLf(std::string&& text) = delete;
