// docs/guide/screens.md against the ten screens: every caption stands there under its screen, and nothing else does.

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <set>

#include "docs/pages.h"
#include "start/frmStart.h"
#include "support/screen_test.h"

namespace {

const char* const Page = "docs/guide/screens.md";
const char* const Shared = "On several screens";

using Texts = std::set<std::string>;

void add(Texts& texts, const QString& text)
{
    if (const std::string shown = docs::simplified(text.toStdString()); !shown.empty())
        texts.insert(shown);
}

QString withoutMnemonic(QString caption)
{
    return caption.remove('&');
}

/// What stands on the screen to be read: its name, labels, buttons, frames and choices.
Texts captionsOf(const QWidget& form)
{
    Texts texts;
    add(texts, form.windowTitle());
    for (const auto* label : form.findChildren<QLabel*>())
        add(texts, label->text());
    for (const auto* button : form.findChildren<QAbstractButton*>())
        add(texts, withoutMnemonic(button->text()));
    for (const auto* frame : form.findChildren<QGroupBox*>())
        add(texts, frame->title());
    for (const auto* choice : form.findChildren<QComboBox*>()) {
        add(texts, choice->currentText());
        for (int i = 0; i < choice->count(); ++i)
            add(texts, choice->itemText(i));
    }
    return texts;
}

/// The page's section of the screen, or of what several screens share.
std::string sectionOf(const std::string& name)
{
    for (const auto& [heading, body] : docs::sections(docs::fileText(Page)))
        if (heading == name || heading.ends_with("`" + name + "`"))
            return body;
    ADD_FAILURE() << Page << " has no section " << name;
    return "";
}

Texts captionsOnPage(const std::string& section)
{
    Texts texts;
    for (const docs::Row& row : docs::tableRows(sectionOf(section)))
        for (const std::string& text : docs::quoted(row.cells.at(0)))
            EXPECT_TRUE(texts.insert(text).second) << text << " stands twice under " << section;
    return texts;
}

class Captions : public ScreenTest {
protected:
    const std::string dataFile = sample("1-ambapur.mdb");

    /// The ten screens of an Sr SE with a good data file.
    std::vector<flow::Screen*> screens()
    {
        chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(dataFile));
        return onAll();
    }
};

TEST_F(Captions, StandInTheGuideUnderTheirScreen)
{
    const Texts shared = captionsOnPage(Shared);
    for (const QWidget* form : screens()) {
        const std::string name = form->objectName().toStdString();
        const Texts onPage = captionsOnPage(name);
        for (const std::string& caption : captionsOf(*form))
            EXPECT_TRUE(onPage.contains(caption) || shared.contains(caption))
                << Page << ", " << name << ": nothing is said of `" << caption << "`";
    }
}

TEST_F(Captions, OfTheGuideStandOnTheirScreen)
{
    Texts everywhere;
    for (const QWidget* form : screens()) {
        const std::string name = form->objectName().toStdString();
        const Texts captions = captionsOf(*form);
        for (const std::string& text : captionsOnPage(name))
            EXPECT_TRUE(captions.contains(text)) << Page << ": " << name << " has no `" << text << "`";
        everywhere.insert(captions.begin(), captions.end());
    }
    for (const std::string& text : captionsOnPage(Shared))
        EXPECT_TRUE(everywhere.contains(text)) << Page << ": no screen has `" << text << "`";
}

TEST_F(Captions, ToolTipsStandAmongTheMessages)
{
    Texts messages;
    for (const docs::Row& row : docs::tableRows(docs::fileText("docs/guide/messages.md")))
        for (const std::string& text : docs::quoted(row.cells.at(0)))
            messages.insert(text);
    for (const QWidget* form : screens()) {
        Texts tips;
        for (const auto* widget : form->findChildren<QWidget*>())
            if (widget->toolTip().toStdString() != dataFile)
                add(tips, widget->toolTip());
        for (const std::string& tip : tips)
            EXPECT_TRUE(messages.contains(tip)) << form->objectName().toStdString() << " has the tool tip " << tip;
    }
}

TEST_F(Captions, OfButtonsAreGivenWithTheirKeys)
{
    for (const QWidget* form : screens()) {
        const std::string name = form->objectName().toStdString();
        std::vector<docs::Row> rows = docs::tableRows(sectionOf(name));
        for (const docs::Row& row : docs::tableRows(sectionOf(Shared)))
            rows.push_back(row);
        for (const auto* button : form->findChildren<QAbstractButton*>()) {
            static const QRegularExpression mnemonic("&(\\w)");
            const QRegularExpressionMatch found = mnemonic.match(button->text());
            if (!found.hasMatch())
                continue;
            const std::string key = "Alt+" + found.captured(1).toUpper().toStdString();
            const std::string caption = "`" + docs::simplified(withoutMnemonic(button->text()).toStdString()) + "`";
            EXPECT_TRUE(std::any_of(rows.begin(), rows.end(),
                                    [&](const docs::Row& row) {
                                        return row.cells.at(0) == caption && row.cells.at(1).starts_with(key + ":");
                                    }))
                << Page << ", " << name << ": " << caption << " is pressed by " << key;
        }
    }
}

}  // namespace
