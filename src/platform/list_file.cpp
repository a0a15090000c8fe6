#include "platform/list_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/files.h"
#include "platform/run_time_error.h"

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view separators = " \t,\r\n";

RunTimeError systemError(int code, const std::string& path) {
    switch (code) {
        case ENOENT:
        case ENOTDIR:
        case ELOOP:
        case ENAMETOOLONG:
            return RunTimeError(Fault::PathNotFound, path);
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case ETXTBSY:
            return RunTimeError(Fault::PermissionDenied, path);
        default:
            return RunTimeError(Fault::DiskFull, path);
    }
}

/// The file that a chain of symbolic links ends at, there or not.
std::string withoutLinks(std::string path) {
    namespace fs = std::filesystem;
    for (int links = 0; links < 40; ++links) {
        std::error_code noLink;
        const fs::path next = fs::read_symlink(path, noLink);
        if (noLink) return path;
        path = (fs::path(path).parent_path() / next).string();
    }
    throw systemError(ELOOP, path);
}

/// Makes an empty file beside `target`, hidden and under a name that nobody has, with the target's owner and
/// permissions where there is a target.
std::string makeTemporary(const std::string& target, const struct stat* existing) {
    const std::size_t name = target.rfind('/') + 1;  // 0 without a folder
    for (int attempt = 0;; ++attempt) {
        const std::string temporary = target.substr(0, name) + "." + target.substr(name) + "." +
                                      std::to_string(getpid()) + "-" + std::to_string(attempt);
        const int file = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file < 0 && errno == EEXIST) continue;
        if (file < 0) throw systemError(errno, target);
        if (existing) {
            // Only the administrator may give files away; for others the owner stays who writes.
            [[maybe_unused]] const int owner = fchown(file, existing->st_uid, existing->st_gid);
            fchmod(file, existing->st_mode & 07777);
        }
        ::close(file);
        return temporary;
    }
}

/// Brings the written file to the disk; what fails only now is a failed write.
bool synced(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return false;
    const bool good = fsync(file) == 0;
    ::close(file);
    return good;
}

}  // namespace

ListReader::ListReader(const std::string& path) {
    const std::string name = resolveName(path);
    struct stat status;
    if (stat(name.c_str(), &status) != 0)
        throw RunTimeError(errno == EACCES ? Fault::PermissionDenied : Fault::FileNotFound, path);
    std::ifstream file(name, std::ios::binary);
    if (!file || S_ISDIR(status.st_mode)) throw RunTimeError(Fault::PermissionDenied, path);
    std::ostringstream text;
    if (file.peek() != std::ifstream::traits_type::eof()) text << file.rdbuf();
    if (file.bad()) throw RunTimeError(Fault::PermissionDenied, path);
    text_ = std::move(text).str();
}

ListReader ListReader::fromText(std::string text) {
    ListReader reader;
    reader.text_ = std::move(text);
    return reader;
}

std::size_t ListReader::itemStart() const {
    return std::min(text_.find_first_not_of(separators, at_), text_.size());
}

std::string_view ListReader::token() const {
    const std::size_t start = itemStart();
    if (start == text_.size()) throw RunTimeError(Fault::EndOfFile);
    const std::size_t end = std::min(text_.find_first_of(separators, start), text_.size());
    return std::string_view(text_).substr(start, end - start);
}

void ListReader::pass(std::string_view token) {
    at_ = static_cast<std::size_t>(token.data() - text_.data()) + token.size();
    const std::size_t next = text_.find_first_not_of(blanks, at_);
    if (next != std::string::npos && text_[next] == ',') at_ = next + 1;
}

template <class Number>
Number ListReader::readNumber(Number (*convert)(std::string_view)) {
    const std::string_view item = token();
    const Number value = convert(item);  // where it fails the reader stays in front of the item
    pass(item);
    return value;
}

Integer ListReader::readInteger() { return readNumber<Integer>(ToInteger); }
Long ListReader::readLong() { return readNumber<Long>(ToLong); }
Single ListReader::readSingle() { return readNumber<Single>(ToSingle); }
Double ListReader::readDouble() { return readNumber<Double>(ToDouble); }

Variant ListReader::readVariant() {
    if (IsNumeric(token())) return readDouble();
    at_ = itemStart();
    return readText();
}

std::string ListReader::readText() {
    if (endOfFile()) throw RunTimeError(Fault::EndOfFile);
    const std::size_t lineEnd = std::min(text_.find('\n', at_), text_.size());
    const bool carriageReturn = lineEnd > at_ && lineEnd < text_.size() && text_[lineEnd - 1] == '\r';
    const std::string_view line(text_.data() + at_, lineEnd - (carriageReturn ? 1 : 0) - at_);

    const std::size_t start = std::min(line.find_first_not_of(blanks), line.size());
    std::size_t end = std::min(line.find(',', start), line.size());
    std::string_view text = line.substr(start, end - start);
    // Quotes hold the text together only where nothing stands behind the closing one.
    if (line.substr(start).starts_with('"')) {
        const std::size_t close = line.find('"', start + 1);
        const std::size_t behind = close == std::string_view::npos
                                       ? std::string_view::npos
                                       : std::min(line.find_first_not_of(blanks, close + 1), line.size());
        if (behind != std::string_view::npos && (behind == line.size() || line[behind] == ',')) {
            text = line.substr(start + 1, close - start - 1);
            end = behind;
        }
    }
    std::string result(text);
    at_ = end < line.size() ? at_ + end + 1 : std::min(lineEnd + 1, text_.size());
    return result;
}

std::string ListReader::readLine() {
    if (endOfFile()) throw RunTimeError(Fault::EndOfFile);
    const std::size_t end = std::min(text_.find('\n', at_), text_.size());
    std::string line = text_.substr(at_, end - at_);
    if (end < text_.size() && line.ends_with('\r')) line.pop_back();
    at_ = std::min(end + 1, text_.size());
    return line;
}

bool ListReader::endOfFile() const { return at_ >= text_.size(); }

int ListReader::lineNumber() const {
    const auto start = text_.begin() + static_cast<std::ptrdiff_t>(itemStart());
    return 1 + static_cast<int>(std::count(text_.begin(), start, '\n'));
}

std::string ListReader::nextItem() const { return itemStart() < text_.size() ? std::string(token()) : ""; }

ListWriter::ListWriter(const std::string& path) : target_(withoutLinks(resolveName(path))) {
    struct stat status;
    const bool exists = stat(target_.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) throw systemError(EISDIR, path);
    if (exists && access(target_.c_str(), W_OK) != 0) throw systemError(errno, path);
    // A device has no place that another file could take: it is written itself.
    if (!exists || S_ISREG(status.st_mode)) temporary_ = makeTemporary(target_, exists ? &status : nullptr);
    file_ = std::make_unique<std::ofstream>(temporary_.empty() ? target_ : temporary_, std::ios::binary);
    out_ = file_.get();
}

ListWriter::ListWriter(std::ostream& stream) : out_(&stream) {}

ListWriter::~ListWriter() {
    if (!temporary_.empty()) unlink(temporary_.c_str());
}

void ListWriter::number(Integer value) { text(Str(value) + " "); }
void ListWriter::number(Single value) { text(Str(value) + " "); }
void ListWriter::number(Double value) { text(Str(value) + " "); }
void ListWriter::number(const Variant& value) { text(value.isText() ? value.text() : Str(value) + " "); }
void ListWriter::text(const std::string& text) { *out_ << text; }
void ListWriter::endLine() { *out_ << "\r\n"; }
void ListWriter::line(const std::string& text) { *out_ << text << "\r\n"; }

void ListWriter::close() {
    out_->flush();
    const bool written = out_->good();
    file_.reset();
    if (!written || (!temporary_.empty() && !synced(temporary_)))
        throw RunTimeError(Fault::DiskFull, target_);
    if (temporary_.empty()) return;
    if (rename(temporary_.c_str(), target_.c_str()) != 0) throw systemError(errno, target_);
    temporary_.clear();
}

void writeFileAtomically(const std::string& path, const std::string& bytes) {
    ListWriter writer(path);
    writer.text(bytes);
    writer.close();
}
