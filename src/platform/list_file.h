// Text files of free-format lists: decks, plot files, the history file.
//
// The writer is atomic: it writes a temporary file beside the target, which
// takes the target's place on close(). A crash, a full disk or a kill never
// leaves half a file where a whole one was.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/numbers.h"

/// Reads items in sequence. Blanks, commas and line ends separate; line ends are CR LF or LF. A token that
/// is no number, a value out of the type's range and the end of file are RunTimeErrors (TypeMismatch,
/// Overflow, EndOfFile).
class ListReader {
  public:
    /// Opens `path` (resolved ignoring letter case). FileNotFound, PermissionDenied.
    explicit ListReader(const std::string& path);
    /// Reads from memory.
    static ListReader fromText(std::string text);

    Integer readInteger();
    Long readLong();
    Single readSingle();
    Double readDouble();
    /// A number (as a Double) if the token is one, otherwise the text to the next comma or line end.
    Variant readVariant();
    /// Skips leading blanks, starts on the line where the reader stands, may be empty, runs to the next
    /// comma or line end; in double quotes commas are part of it.
    std::string readText();
    /// A whole line, as it stands.
    std::string readLine();
    bool endOfFile() const;
    /// Line on which the next item starts, from 1: for messages.
    int lineNumber() const;
    /// The item that the next number would be read from, empty at the end of file: for messages.
    std::string nextItem() const;

  private:
    ListReader() = default;
    std::size_t itemStart() const;
    std::string_view token() const;
    void pass(std::string_view token);
    template <class Number>
    Number readNumber(Number (*convert)(std::string_view));

    std::string text_;
    std::size_t at_ = 0;
};

/// Writes lines that end in CR LF.
class ListWriter {
  public:
    /// Starts a new file that will stand at `path` (resolved ignoring letter case; a symbolic link is
    /// followed) with the permissions of the file it replaces. A device is written directly. PathNotFound,
    /// PermissionDenied.
    explicit ListWriter(const std::string& path);
    /// Writes to a stream of the caller's; close() only checks it. For tests of failing devices.
    explicit ListWriter(std::ostream& stream);
    ~ListWriter();  ///< without close(): the temporary file goes, the target stays as it was
    ListWriter(const ListWriter&) = delete;
    ListWriter& operator=(const ListWriter&) = delete;

    /// A number's text (with its sign blank) and one blank behind it; a Variant's text bare.
    void number(Integer value);
    void number(Single value);
    void number(Double value);
    void number(const Variant& value);
    void text(const std::string& text);
    void endLine();
    void line(const std::string& text);
    /// Checks, syncs, and puts the file in its place. DiskFull, PermissionDenied: the target stays as it was.
    void close();

  private:
    std::unique_ptr<std::ostream> file_;
    std::ostream* out_ = nullptr;
    std::string target_, temporary_;
};

/// Writes `bytes` to `path` with the writer's promise. For texts that are not lists.
void writeFileAtomically(const std::string& path, const std::string& bytes);
