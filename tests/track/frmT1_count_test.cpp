// Who sets the number of segments: the data file, or, where it has none, the user.
#include "track/track_import.h"

namespace {

class TrackCount : public TrackImport {
protected:
    bool isOpen() { return !locked("txtNSeg") && !pale("txtNSeg"); }

    void expectNoRow()
    {
        dialogs.expectCritical(Title, "Subscript out of range: row 1 of table TR is missing. Type the figures, or "
                                      "choose a data file that holds it.");
    }

    /// The grid with two records, the first of which says how many segments there are.
    void putTwo(const std::string& count)
    {
        putRecords("TrGrid",
                   {{"a", count, "1", "UP", "10", "25", "1.5", "12.3", "4", "12", "23.7", "3", "Machine Packed"},
                    {"b", "", "2", "DN", "10", "25", "0.3", "12.3", "4", "12", "0.3", "4", "Machine Packed"}});
    }
};

TEST_F(TrackCount, IsTheFilesOwnWhereThereIsAFile)
{
    open(sample("1-ambapur.mdb"));
    EXPECT_FALSE(isOpen());
    import();
    EXPECT_EQ(text("txtNSeg"), "5");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrackCount, IsTypedWhereNoFileIsChosen)
{
    const frmT1& t1 = open("");
    EXPECT_TRUE(isOpen());
    type("txtT1(0)", "Sample Section");
    type("txtNSeg", "3");
    EXPECT_EQ(t1.SegCount, 3);
    EXPECT_EQ(t1.SectionText.toStdString(), "Sample Section");
    for (const char* array : RowArrays)
        EXPECT_EQ(shownOf(array, 0, 15), "1110000000000000") << array;
    EXPECT_TRUE(enabled("cmdCompute") && t1.cmdCompute.isDefault());
    EXPECT_TRUE(enabled("cmdCopy"));
    type("txtNSeg", "20");
    EXPECT_EQ(text("txtNSeg"), "16");
    EXPECT_EQ(t1.SegCount, 16);
}

TEST_F(TrackCount, IsTypedWhereTheFileCannotBeRead)
{
    for (const char* file : {"no-such-file.mdb", "no-tables.mdb"}) {  // the other holds no table TR
        dialogs.expectCriticalWith("Tr Data", "");
        open(fixture(file));
        EXPECT_TRUE(isOpen()) << file;
        click("optBG");
        expectNoRow();
        click("cmdCopy");
        EXPECT_TRUE(isOpen()) << file;
        chain.unload<frmT1>();
        settle();
    }
}

TEST_F(TrackCount, IsTypedWhereTheTableHasNoRecord)
{
    open(fixture("empty-tables.mdb"));
    EXPECT_FALSE(isOpen());
    expectNoRow();
    import();
    EXPECT_TRUE(isOpen());
    type("txtNSeg", "2");
    EXPECT_EQ(shownOf("txtKmf", 0, 2), "110");
}

TEST_F(TrackCount, IsTypedWhereItsCellIsEmpty)
{
    const char* const hint = "Type the number of segments: the data file has none.";
    for (const char* empty : {"", "  "}) {
        open(sample("1-ambapur.mdb"));
        putTwo(empty);
        import();
        EXPECT_EQ(text("txtNSeg"), "");
        EXPECT_TRUE(isOpen());
        EXPECT_TRUE(tells(hint));
        EXPECT_EQ(focus(), "txtNSeg");
        EXPECT_FALSE(enabled("cmdCompute"));

        type("txtNSeg", "2");
        EXPECT_FALSE(tells(hint));
        EXPECT_TRUE(enabled("cmdCompute"));
        click("cmdCopy");  // the rows can still come from the file
        EXPECT_EQ(text("txtNSeg"), "2");
        EXPECT_EQ(record(0), madeUp(0));
        EXPECT_EQ(record(1), madeUp(1));
        EXPECT_TRUE(isOpen());
        EXPECT_EQ(focus(), "cmdCompute");
        chain.unload<frmT1>();
        settle();
    }
}

TEST_F(TrackCount, OfAnotherFileDoesNotStayWhereThisOneHasNone)
{
    const frmT1& t1 = open(sample("1-ambapur.mdb"));
    import();
    putTwo("");
    click("cmdCopy");
    EXPECT_EQ(text("txtNSeg"), "");
    EXPECT_EQ(t1.SegCount, 0);
    EXPECT_EQ(shownOf("txtKmf", 0, 15), "0000000000000000");
    EXPECT_TRUE(isOpen());
}

TEST_F(TrackCount, IsLockedAgainByAnImportThatBringsOne)
{
    open("");
    open(sample("1-ambapur.mdb"));
    EXPECT_TRUE(isOpen()) << "not before the import";
    import();
    EXPECT_EQ(text("txtNSeg"), "5");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrackCount, IsLockedByComputeForGood)
{
    const frmT1& t1 = open("");
    type("txtNSeg", "1");
    limits(0, "10", "25");
    type("txtLWR(0)", "3");
    click("cmdCompute");
    EXPECT_FALSE(isOpen());
    expectNoRow();
    click("cmdCopy");
    EXPECT_FALSE(isOpen());
    on<frmT1>();
    EXPECT_FALSE(isOpen());
    putTwo("");
    click("cmdCopy");
    EXPECT_EQ(text("txtNSeg"), "1");
    EXPECT_FALSE(isOpen() || enabled("cmdCompute"));
    EXPECT_EQ(t1.LwrTotal, 3.0F);
}

}  // namespace
