#include "app/DoctorReport.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace tembra {

namespace {

using State = Finding::State;

QString stateName(State state) {
    switch (state) {
    case State::ok:
        return QStringLiteral("ok");
    case State::limited:
        return QStringLiteral("limited");
    case State::broken:
        break;
    }
    return QStringLiteral("broken");
}

QString stateText(State state) {
    switch (state) {
    case State::ok:
        return QCoreApplication::translate("DoctorReport", "works");
    case State::limited:
        return QCoreApplication::translate("DoctorReport", "in part");
    case State::broken:
        break;
    }
    return QCoreApplication::translate("DoctorReport", "BROKEN");
}

} // namespace

bool DoctorReport::isHealthy() const {
    return std::ranges::none_of(
        checks, [](const DoctorCheck &check) { return check.finding.state == State::broken; });
}

QByteArray DoctorReport::json() const {
    QJsonArray list;
    for (const DoctorCheck &check : checks) {
        list.append(QJsonObject{{QStringLiteral("id"), check.id},
                                {QStringLiteral("title"), check.title},
                                {QStringLiteral("state"), stateName(check.finding.state)},
                                {QStringLiteral("text"), check.finding.text},
                                {QStringLiteral("remedy"), check.finding.remedy}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("checks"), list}}).toJson();
}

QString DoctorReport::text() const {
    qsizetype width = 0;
    for (const State state : {State::ok, State::limited, State::broken})
        width = std::max(width, stateText(state).size());
    QString text;
    for (const DoctorCheck &check : checks) {
        const Finding &finding = check.finding;
        text += stateText(finding.state).leftJustified(width + 2) + check.title + QStringLiteral(": ") +
                finding.text + u'\n';
        if (!finding.remedy.isEmpty())
            text += QString(width + 2, u' ') + QStringLiteral("→ ") + finding.remedy + u'\n';
    }
    return text;
}

} // namespace tembra
