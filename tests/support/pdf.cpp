#include "support/pdf.h"

#include <memory>
#include <poppler-qt6.h>
#include <stdexcept>

namespace {

constexpr double DotsPerInch = 100;

std::unique_ptr<Poppler::Document> read(const std::string& pdf)
{
    auto document = Poppler::Document::load(QString::fromStdString(pdf));
    if (!document)
        throw std::runtime_error(pdf + " is no PDF file");
    document->setRenderHint(Poppler::Document::Antialiasing);
    document->setRenderHint(Poppler::Document::TextAntialiasing);
    return document;
}

}  // namespace

int pagesOf(const std::string& pdf)
{
    return read(pdf)->numPages();
}

QString textOn(const std::string& pdf)
{
    const auto document = read(pdf);
    QString text;
    for (int i = 0; i < document->numPages(); ++i)
        text += document->page(i)->text({});
    return text;
}

QSizeF paperOf(const std::string& pdf)
{
    return read(pdf)->page(0)->pageSizeF();
}

std::vector<Word> wordsOn(const std::string& pdf)
{
    const auto document = read(pdf);
    std::vector<Word> words;
    for (const auto& word : document->page(0)->textList())
        words.push_back({word->text(), word->boundingBox()});
    return words;
}

QImage pictureOf(const std::string& pdf)
{
    QImage picture = read(pdf)->page(0)->renderToImage(DotsPerInch, DotsPerInch);
    if (picture.isNull())
        throw std::runtime_error(pdf + " cannot be drawn");
    return picture;
}
