#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include <sys/types.h>
#include <time.h>

// Before mdbtools.h, which includes it between its own extern "C" braces.
#include <glib.h>

#include <mdbtools.h>

#include "store/reader/bytes.h"
#include "store/refusal.h"

namespace store {

/// Thrown when a table cannot be opened, or not be read any further.
struct ReadError {
    Refusal refusal;
};

/// Where a record, or another piece of a page, lies on its page [byte].
struct Place {
    std::size_t begin = 0;
    std::size_t end = 0;
    bool isPointer = false;  ///< the record outgrew its place: here is only where it went
    bool isDeleted = false;  ///< or the other end of such a pointer
};

/// The data file, open for reading. The library reads its pages, deciphers them and knows the code pages of Access 97;
/// what the pages hold is taken apart here, because the library believes what it finds there.
struct Source {
    MdbHandle* mdb = nullptr;
    int file = -1;
    off_t size = 0;             ///< [byte] when it was opened, as the next
    timespec changed{};         ///< time of its last change
    bool hasSignature = false;  ///< starts as an Access file does

    bool isJet3() const { return mdb->f->jet_version == MDB_VER_JET3; }  ///< of Access 97
    std::size_t pageSize() const { return static_cast<std::size_t>(mdb->fmt->pg_size); }
    std::uint32_t pages() const;  ///< the last of them may not be whole

    /// The bytes of a page that the file holds, none if it ends before it. They stay until the next page is asked for.
    Bytes page(std::uint32_t number) const;
    /// The same, beside the page in hand.
    Bytes otherPage(std::uint32_t number) const;

    /// How many places the page has for records.
    unsigned placesOn(Bytes page) const;
    /// One of them; none if it does not lie within the page.
    std::optional<Place> place(Bytes page, unsigned slot) const;

    /// Text of Access 97, one byte a character in the code page of its country, in UTF-8.
    std::string decoded(Bytes stored) const;

    /// Somebody has written to the file since it was opened.
    bool hasChanged() const;
};

}  // namespace store
