#include "support/fake_dialogs.h"

#include <QPrinter>
#include <gtest/gtest.h>

namespace {
const char* const FileTitle = "File Open";
const char* const FileFilter = "Access Files(*.mdb)|*.mdb";
}  // namespace

FakeDialogs::~FakeDialogs()
{
    for (const Expected& box : m_expected)
        ADD_FAILURE() << "a box that was expected did not come: \"" << box.title << "\": " << box.text;
}

void FakeDialogs::expectYesNo(const std::string& title, const std::string& prompt, bool answer)
{
    m_expected.push_back({.kind = Kind::YesNo, .title = title, .text = prompt, .yes = answer, .choice = {}});
}

void FakeDialogs::expectCritical(const std::string& title, const std::string& text)
{
    m_expected.push_back({.kind = Kind::Critical, .title = title, .text = text, .choice = {}});
}

void FakeDialogs::expectCriticalWith(const std::string& title, const std::string& part)
{
    m_expected.push_back({.kind = Kind::Critical, .title = title, .text = part, .partOnly = true, .choice = {}});
}

void FakeDialogs::expectMessage(const std::string& title, const std::string& text)
{
    m_expected.push_back({.kind = Kind::Message, .title = title, .text = text, .choice = {}});
}

void FakeDialogs::expectFile(const std::string& path)
{
    m_expected.push_back({.kind = Kind::File, .title = FileTitle, .text = path, .choice = {}});
}

void FakeDialogs::expectPrint(const flow::PrintChoice& choice, const std::string& path)
{
    m_expected.push_back({.kind = Kind::Print, .title = "", .text = path, .choice = choice});
    m_expected.back().choice->at = PrintedAt;
}

void FakeDialogs::expectPrintCancelled()
{
    m_expected.push_back({.kind = Kind::Print, .title = "", .text = "", .choice = {}});
}

std::optional<FakeDialogs::Expected> FakeDialogs::take(Kind kind, const std::string& title, const std::string& text)
{
    if (m_expected.empty()) {
        ADD_FAILURE() << "a box that nobody expected: \"" << title << "\": " << text;
        return std::nullopt;
    }
    const Expected box = m_expected.front();
    m_expected.pop_front();
    const bool says = kind == Kind::File || kind == Kind::Print || box.text == text ||
                      (box.partOnly && text.find(box.text) != std::string::npos);
    if (box.kind == kind && box.title == title && says)
        return box;
    ADD_FAILURE() << "expected the box \"" << box.title << "\": " << box.text << "\n     came the box \"" << title
                  << "\": " << text;
    return std::nullopt;
}

bool FakeDialogs::askYesNo(QWidget&, const QString& title, const QString& prompt, bool)
{
    const auto box = take(Kind::YesNo, title.toStdString(), prompt.toStdString());
    return box && box->yes;
}

int FakeDialogs::showCritical(QWidget&, const QString& title, const QString& text)
{
    take(Kind::Critical, title.toStdString(), text.toStdString());
    return Ok;
}

int FakeDialogs::showMessage(QWidget&, const QString& title, const QString& text)
{
    take(Kind::Message, title.toStdString(), text.toStdString());
    return Ok;
}

QString FakeDialogs::openFile(QWidget&, const QString& title, const QString& filter, const QString& folder)
{
    m_lastFolder = folder.toStdString();
    EXPECT_EQ(filter.toStdString(), FileFilter);
    const auto box = take(Kind::File, title.toStdString(), "");
    return box ? QString::fromStdString(box->text) : QString();
}

std::optional<flow::PrintChoice> FakeDialogs::print(QWidget&, QPrinter& printer)
{
    m_lastSheet = printer.docName().toStdString();
    const auto box = take(Kind::Print, "", "");
    if (!box || !box->choice)
        return std::nullopt;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(box->text));
    printer.setCopyCount(std::max(1, box->choice->copies));
    return box->choice;
}
