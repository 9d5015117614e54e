#include "division/kept_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>

#include "division/steps.h"

namespace division {

namespace {

constexpr int Version = 1;
constexpr int MaxSrSes = 15;
constexpr qint64 MaxBytes = 4LL * 1024 * 1024;

[[noreturn]] void refuse(const QString& place, const QString& reason)
{
    throw KeptFileError((place + ": " + reason).toStdString());
}

// "Sr SE 2, name"
QString within(const QString& place, const QString& part)
{
    return place.isEmpty() ? part : place + ", " + part;
}

QString textOf(const QJsonValue& value, const QString& place)
{
    if (!value.isString())
        refuse(place, "a text is expected");
    return value.toString();
}

// A member that is missing is an empty text.
QString textMember(const QJsonObject& object, const QString& name, const QString& place)
{
    const QJsonValue value = object.value(name);
    return value.isUndefined() ? QString() : textOf(value, within(place, name));
}

QJsonArray listMember(const QJsonObject& object, const QString& name, const QString& place)
{
    const QJsonValue value = object.value(name);
    if (!value.isArray() && !value.isUndefined())
        refuse(within(place, name), "a list is expected");
    return value.toArray();
}

QJsonObject objectOf(const QJsonValue& value, const QString& place)
{
    if (!value.isObject())
        refuse(place, "an object is expected");
    return value.toObject();
}

int countMember(const QJsonObject& object, const QString& name, int most)
{
    const QJsonValue value = object.value(name);
    const int count = value.toInt(-1);  // also of a fraction
    if (count < 0 || count > most)
        refuse(name, QString("a whole number from 0 to %1 is expected").arg(most));
    return count;
}

Act actOf(const QJsonValue& value, const QString& place)
{
    const QJsonArray words = value.toArray();
    if (!value.isArray() || words.isEmpty() || words.size() > 2)
        refuse(place, "a list of a control's name and at most one text is expected");
    Act act{.control = textOf(words[0], place)};
    if (words.size() == 2)
        act.text = textOf(words[1], place);
    return act;
}

std::vector<Act> actsOf(const QJsonObject& object, const QString& name, const QString& place)
{
    std::vector<Act> acts;
    for (const auto& value : listMember(object, name, place))
        acts.push_back(actOf(value, within(place, QString("act %1").arg(acts.size() + 1))));
    return acts;
}

// The place of the form in the chain. The start screen keeps its entries elsewhere.
std::size_t orderOf(const QString& form, const QString& place)
{
    const auto* const step =
        std::find_if(Steps.begin() + 1, Steps.end(), [&](const Step& one) { return one.form == form; });
    if (step == Steps.end())
        refuse(place, QString("there is no screen \"%1\" to be worked").arg(form));
    return static_cast<std::size_t>(step - Steps.begin());
}

KeptWorking workingOf(const QJsonObject& object, const QString& place)
{
    KeptWorking working{.name = textMember(object, "name", place),
                        .dataFile = textMember(object, "dataFile", place),
                        .note = textMember(object, "note", place),
                        .screens = {}};
    std::size_t before = 0;
    for (const auto& value : listMember(object, "screens", place)) {
        const QString at = within(place, QString("screen %1").arg(working.screens.size() + 1));
        const QJsonObject screen = objectOf(value, at);
        const QString form = textOf(screen.value("form"), within(at, "form"));
        const std::size_t order = orderOf(form, at);
        if (order <= before)
            refuse(at, QString("%1 cannot stand behind %2").arg(form, Steps[before].form));
        before = order;
        working.screens.push_back({.form = form, .acts = actsOf(screen, "acts", within(place, form))});
    }
    return working;
}

QByteArray bytesOf(const QString& path)
{
    if (!QFileInfo(path).isFile())  // a pipe would keep the program waiting
        refuse(path, "there is no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, file.errorString());
    QByteArray bytes = file.read(MaxBytes + 1);
    if (bytes.size() > MaxBytes)
        refuse(path, "the file has more than 4 MiB");
    return bytes;
}

}  // namespace

KeptDivision parseKeptDivision(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        refuse(QString("line %1").arg(json.left(error.offset).count('\n') + 1), error.errorString());
    const QJsonObject object = document.object();
    if (!object.contains("crewmark"))
        throw KeptFileError("this is no division of Crewmark");
    if (object.value("crewmark").toInt() != Version)
        refuse("crewmark", QString("only version %1 can be read").arg(Version));

    KeptDivision division{.railway = textMember(object, "railway", ""),
                          .division = textMember(object, "division", ""),
                          .srSes = countMember(object, "srSes", MaxSrSes),
                          .workings = {},
                          .totals = actsOf(object, "totals", "totals"),
                          .results = {}};
    const QJsonArray workings = listMember(object, "workings", "");
    if (workings.size() > MaxSrSes)
        refuse("workings", QString("there are %1 Sr SEs, of which %2 is the most").arg(workings.size()).arg(MaxSrSes));
    for (const auto& value : workings) {
        const QString place = QString("Sr SE %1").arg(division.workings.size() + 1);
        division.workings.push_back(workingOf(objectOf(value, place), place));
    }
    if (object.contains("results"))
        division.results = objectOf(object.value("results"), "results");
    return division;
}

KeptDivision readKeptFile(const QString& path)
{
    KeptDivision division = parseKeptDivision(bytesOf(path));
    const QDir folder(QFileInfo(path).path());
    for (KeptWorking& working : division.workings)
        if (!working.dataFile.isEmpty())
            working.dataFile = QDir::cleanPath(folder.filePath(working.dataFile));
    return division;
}

}  // namespace division
