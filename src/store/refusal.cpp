#include "store/refusal.h"

#include <algorithm>

namespace store {

namespace {

std::string quoted(const std::string& name)
{
    return '"' + name + '"';
}

std::string counted(std::uint32_t count, const std::string& one)
{
    return std::to_string(count) + ' ' + one + (count == 1 ? "" : "s");
}

/// "The file says 16 records, 9 could be read, and the file ends inside a page"; "" if the records are all there.
std::string missingRecords(const Shortfall& shortfall)
{
    const std::string cut = "he file ends inside a page";
    std::string sentence;
    if (shortfall.recordsSaid > shortfall.recordsRead)
        sentence = "The file says " + counted(shortfall.recordsSaid, "record") + ", " +
                   std::to_string(shortfall.recordsRead) + " could be read";
    else if (shortfall.recordsLost)
        sentence = "The file holds records that could not be read";
    if (shortfall.endsInsidePage)
        sentence += (sentence.empty() ? "T" : ", and t") + cut;
    return sentence;
}

/// "2, 5, 9": counted from 1; of many the first ones, "2, 5, 9, 10, 11 and 30 more".
std::string numbered(const std::vector<std::uint32_t>& records)
{
    constexpr std::size_t maxNamed = 5;
    std::string numbers;
    for (std::size_t i = 0; i < std::min(records.size(), maxNamed); ++i)
        numbers += (i == 0 ? "" : ", ") + std::to_string(records[i] + 1);
    if (records.size() > maxNamed)
        numbers += " and " + std::to_string(records.size() - maxNamed) + " more";
    return numbers;
}

}  // namespace

std::string reasonFor(Refusal refusal, const Asked& asked)
{
    const std::string file = quoted(asked.file);
    const std::string table = quoted(asked.table);
    const std::string chooseFile = " Choose the .mdb file of the Sr SE.";
    const std::string useCopy = " Use another copy of the file, or type the figures.";
    const std::string reader = file + " could not be read: the program that reads data files ";
    switch (refusal) {
    case Refusal::NoSuchFile:
        return "There is no file " + file + "." + chooseFile;
    case Refusal::CannotOpen:
        return file + " cannot be opened. Check that you may read it and that its disk is at hand.";
    case Refusal::Folder:
        return file + " is a folder." + chooseFile;
    case Refusal::NotAFile:
        return file + " is a device, not a file." + chooseFile;
    case Refusal::Empty:
        return file + " is not an Access data file: it is empty." + chooseFile;
    case Refusal::NotAccess:
        return file + " is not an Access data file." + chooseFile;
    case Refusal::OnlyHeader:
        return file + " is damaged: it ends after its header." + useCopy;
    case Refusal::Damaged:
        return file + " is damaged: its table " + table + " cannot be read." + useCopy;
    case Refusal::Encrypted:
        return file + " is encrypted under a password. Remove the password in Access, then choose the file again.";
    case Refusal::NoTable:
        return file + " holds no table " + table + "." + chooseFile;
    case Refusal::TooLarge:
        return "The table " + table + " of " + file + " is too large to be read." + chooseFile;
    case Refusal::Unconfined:
        return file +
               " is not read: this system cannot confine the program that reads data files. Type the figures, or start "
               "Crewmark again and allow it.";
    case Refusal::NoProc:
        return file + " could not be read: this system has no /proc. Ask whoever looks after it, or type the figures.";
    case Refusal::Changed:
        return file + " was written to while it was read. Wait until it is saved, then choose it again.";
    case Refusal::Died:
        return file + " is damaged: reading its table " + table + " had to be given up." + useCopy;
    case Refusal::Overstepped:
        return "Reading the table " + table + " of " + file +
               " was stopped: it tried more than reading. The file may be damaged, or made to do harm." + useCopy;
    case Refusal::TooSlow:
        return "Reading the table " + table + " of " + file + " took too long: the file may be damaged." + useCopy;
    case Refusal::NoProperAnswer:
        return reader + "gave no proper answer. Install Crewmark again.";
    case Refusal::NotStarted:
        return reader + "could not be started. Install Crewmark again.";
    }
    return reader + "gave no proper answer. Install Crewmark again.";
}

std::string noticeFor(const Shortfall& shortfall)
{
    std::string notice;
    const auto add = [&notice](const std::string& sentence) { notice += (notice.empty() ? "" : " ") + sentence; };

    if (shortfall.changed)
        add("The file was written to while it was read: import again.");

    if (const std::string records = missingRecords(shortfall); !records.empty())
        add(records + ": it may be damaged.");

    if (const auto& records = shortfall.recordsDamaged; !records.empty())
        add((records.size() == 1 ? "Record " : "Records ") + numbered(records) +
            (records.size() == 1 ? " is" : " are") + " damaged and shown empty.");

    if (shortfall.cellsUnreadable != 0)
        add(counted(shortfall.cellsUnreadable, "cell") + " could not be read and " +
            (shortfall.cellsUnreadable == 1 ? "is" : "are") + " shown empty: the file may be damaged.");

    if (const auto& columns = shortfall.columnsUnreadable; !columns.empty()) {
        std::string names;
        for (const std::string& column : columns)
            names += (names.empty() ? "" : ", ") + column;
        add((columns.size() == 1 ? "The column " : "The columns ") + names + (columns.size() == 1 ? " is" : " are") +
            " of a kind that cannot be read, and shown empty.");
    }
    return notice;
}

}  // namespace store
