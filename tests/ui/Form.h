#pragma once

#include "support/DataRows.h"
#include "ui/Widgets.h"

#include <map>
#include <optional>

/// Calls the function for each name of a list, with false for those that a "!" stands before: "a !b".
template <class Function>
void forEachFlag(const QString& names, Function function)
{
    for (const QString& name : names.split(' '))
        function(name.mid(name.startsWith('!') ? 1 : 0), !name.startsWith('!'));
}

/// The names of what is true.
inline QString namesOf(std::initializer_list<std::pair<QString, bool>> flags)
{
    QStringList names;
    for (const auto& [name, on] : flags)
        if (on)
            names += name;
    return names.join(' ');
}

/// A dialog under test, which the rows of a file can lead through, see walk().
template <class Dialog>
struct Form
{
    using Verb = std::function<void(const QStringList& row)>;

    QString text(const QString& path) { return ::text(dialog, path); }
    bool isEnabled(const QString& path) { return child(dialog, path).isEnabled(); }
    /// The dialog's message, with the kind that its colour stands for: "Error: It failed."
    QString message()
    {
        const MessageKind kind = shownKind(child(dialog, "lineEditMsg"));
        const QString shown = text("lineEditMsg").trimmed();
        return shown.isEmpty() || kind == MessageKind::Plain ? shown : kindName(kind) + ": " + shown;
    }
    /// Opens the dialog anew.
    void reopen()
    {
        dialog.reject();
        open(dialog);
    }
    void press(const QString& keys, const QString& answer = {})
    {
        if (answer.isEmpty())
            return ::press(keys);
        const auto waiting = answerModal(answer);
        ::press(keys);
        EXPECT_FALSE(std::exchange(*waiting, false)) << "no question was asked";
        QApplication::setActiveWindow(&dialog);
    }
    QString seen(const QString& name)
    {
        if (const auto outcome = outcomes.find(name); outcome != outcomes.end())
            return outcome->second();
        const QByteArray property = name.section('.', 1).toLatin1();
        return property.isEmpty() ? text(name)
                                  : child(dialog, name.section('.', 0, 0)).property(property).toString();
    }
    void step(const QStringList& row)
    {
        if (const auto verb = verbs.find(row[0]); verb != verbs.end())
            verb->second(row);
        else if (QStringList{"enabled", "visible", "checked"}.contains(row[0]))
            forEachFlag(row[1], [&](const QString& name, bool on) {
                EXPECT_EQ(child(dialog, name).property(row[0].toLatin1()).toBool(), on) << name;
            });
        else
            EXPECT_EQ(seen(row[0]), row.value(1));
    }

    Dialog dialog;
    std::map<QString, void (Dialog::*)(bool)> settings;
    std::map<QString, Verb> verbs = {
        {"open", [this](const QStringList&) { reopen(); }},
        {"close", [this](const QStringList&) { dialog.close(); }},
        {"minimise", [this](const QStringList&) { sendFromOutside<QHideEvent>(dialog); }},
        {"press", [this](const QStringList& row) { press(row[1], row.value(2)); }},
        {"type", [](const QStringList& row) { type(row[1]); }},
        {"write",
         [this](const QStringList& row) {
             QTest::keyClick(&child(dialog, row[1]), Qt::Key_A, Qt::ControlModifier);
             QTest::keyClicks(&child(dialog, row[1]), row[2]);
         }},
        {"focus", [this](const QStringList& row) { child(dialog, row[1]).setFocus(); }},
        {"click", [this](const QStringList& row) { child<QAbstractButton>(dialog, row[1]).click(); }},
        {"set",
         [this](const QStringList& row) {
             forEachFlag(row[1], [this](const QString& name, bool on) { (dialog.*settings.at(name))(on); });
         }},
    };
    std::map<QString, std::function<QString()>> outcomes = {
        {"message", [this] { return message(); }},
        {"title", [this] { return dialog.windowTitle(); }},
        {"description", [this] { return dialog.accessibleDescription(); }},
        {"focused", [] { return focusName(); }},
        {"ended",
         [this] {
             return dialog.isVisible() ? "" : dialog.result() == QDialog::Accepted ? "accepted" : "rejected";
         }},
    };
};

/// Leads through a dialog by the rows of a file, whose fields have tabs between them and are written as
/// strings of JSON are:
///   walk TITLE              begins anew, with another form
///   open, close, minimise   does that
///   press KEYS [ANSWER]     with the keys that answer the question which comes up then
///   type TEXT, write FIELD TEXT, focus WIDGET, click BUTTON
///   set NAMES               the form's settings, "!" before those that are off
///   enabled, visible or checked WIDGETS: which are, and with "!" which are not
///   NAME VALUE              an outcome, what a widget shows, or WIDGET.PROPERTY
/// Forms have verbs and outcomes of their own beside these.
template <class Walked>
void walk(const char* file)
{
    std::optional<Walked> form;
    QString title;
    for (const test::Row& row : test::dataRows(file)) {
        QStringList fields;
        for (const std::string& field : row)
            fields += QJsonDocument::fromJson(("[\"" + field + "\"]").c_str()).array().at(0).toString();
        if (fields[0] == "walk") {
            title = fields[1];
            form.emplace();
            continue;
        }
        SCOPED_TRACE(title + ": " + fields.join(' '));
        form->step(fields);
    }
    EXPECT_TRUE(form) << "no rows in " << file;
}
