// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/TypedEntry.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "funclib/TypedFunctions.h"
#include "graphwin/Dialogs.h"
#include "graphwin/FormStyle.h"
#include "graphwin/Language.h"

QString typedNamesHelp(const QString& variables, const QString& coefficients)
{
    return Plotto::tr("Use %1, the coefficients %2, the numbers e and pi, + - * / and ^ (a power, "
                      "taken before a minus sign: -x^2 is -(x^2)). Write every product with *, as 2*x. "
                      "Functions: %3.")
        .arg(variables, coefficients, i18n::words(FuncGlobals::typedFunctionsHelp()));
}

std::optional<QStringList> openTypedEntry(QWidget* parent, const TypedEntryLayout& entry)
{
    if (DialogScript* script = dialogScript()) {
        const bool cancelled = script->answers.empty();
        QStringList lines;
        for (const QString& field : entry.fields)
            lines << scriptedAnswer(entry.title, field);
        if (cancelled)
            return std::nullopt;
        return lines;
    }
    QDialog dialog(parent);
    dialog.setWindowTitle(entry.title);
    dialog.setFont(FormStyle::zoomed(QApplication::font(), parent));
    auto* layout = new QVBoxLayout(&dialog);

    auto* form = new QFormLayout;
    QVector<QLineEdit*> lines;
    for (int i = 0; i < entry.fields.size(); ++i) {
        auto* line = new QLineEdit(entry.initial.value(i), &dialog);
        line->setMinimumWidth(line->fontMetrics().horizontalAdvance(QLatin1Char('x')) * 40);
        line->setAccessibleName(entry.fields[i]);
        form->addRow(entry.fields[i], line);
        lines << line;
    }
    layout->addLayout(form);

    auto* examples = new QComboBox(&dialog);
    examples->addItem(Plotto::tr("Examples..."));
    for (const QStringList& example : entry.examples)
        examples->addItem(example.join(QStringLiteral(",   ")), example);
    examples->setAccessibleName(Plotto::tr("Examples"));
    layout->addWidget(examples);

    auto* preview = new QLabel(&dialog);
    preview->setWordWrap(true);
    preview->setTextInteractionFlags(Qt::TextSelectableByMouse);
    preview->setAccessibleName(Plotto::tr("Preview"));
    layout->addWidget(preview);
    auto* names = new QLabel(entry.names, &dialog);
    names->setWordWrap(true);
    layout->addWidget(names);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);

    auto texts = [&lines] {
        QStringList t;
        for (QLineEdit* line : lines)
            t << line->text();
        return t;
    };
    auto refresh = [&] {
        QString shown;
        const QString refusal = entry.check(texts(), shown);
        buttons->button(QDialogButtonBox::Ok)->setEnabled(refusal.isEmpty());
        preview->setText(refusal.isEmpty() ? shown : Plotto::tr("Cannot be taken: %1").arg(refusal));
        preview->setAccessibleDescription(preview->text());
    };
    for (QLineEdit* line : lines)
        QObject::connect(line, &QLineEdit::textChanged, &dialog, refresh);
    QObject::connect(examples, &QComboBox::activated, &dialog, [&](int index) {
        const QStringList example = examples->itemData(index).toStringList();
        for (int i = 0; i < lines.size() && i < example.size(); ++i)
            lines[i]->setText(example[i]);
    });
    refresh();
    if (!lines.isEmpty())
        lines.front()->selectAll();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return texts();
}
