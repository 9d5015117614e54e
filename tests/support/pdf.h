#pragma once
#include <QImage>
#include <QRectF>
#include <QString>
#include <string>
#include <vector>

// A printed PDF file as a viewer sees it. Each throws std::runtime_error for what is no PDF file.

struct Word {
    QString text;
    QRectF box;  ///< [pt]
};

int pagesOf(const std::string& pdf);
QString textOn(const std::string& pdf);  ///< of all pages, laid out as it stands on them

// Of the first page:
QSizeF paperOf(const std::string& pdf);  ///< [pt]
std::vector<Word> wordsOn(const std::string& pdf);
QImage pictureOf(const std::string& pdf);
