#include "store/refusal.h"

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
    if (shortfall.recordsSaid != 0 && shortfall.recordsSaid != shortfall.recordsRead)
        sentence = "The file says " + counted(shortfall.recordsSaid, "record") + ", " +
                   std::to_string(shortfall.recordsRead) + " could be read";
    else if (shortfall.recordsSaid == 0 && shortfall.recordsLost)
        sentence = "The file holds records that could not be read";
    if (shortfall.endsInsidePage)
        sentence += (sentence.empty() ? "T" : ", and t") + cut;
    return sentence;
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
    case Refusal::Died:
        return file + " is damaged: reading its table " + table + " had to be given up." + useCopy;
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

    if (const std::string records = missingRecords(shortfall); !records.empty())
        add(records + ": it may be damaged.");

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
