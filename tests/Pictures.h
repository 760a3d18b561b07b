// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Pictures compared pixel for pixel with the ones kept in tests/pictures (see test_pictures.cpp).
//
// Text is drawn with the machine's fonts, so the pictures are compared only where a sample of the
// program's type comes out exactly as when they were kept, by the same version of Qt; elsewhere the
// cases are skipped and say why. PLOTTO_KEEP_PICTURES=1 keeps this run's pictures instead (look at
// each before committing it). A picture that differs is written to pictures-differ/ in the test's
// folder, with the pixels that differ in red beside it.
#include <QApplication>
#include <QDir>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <utility>
#include <vector>
#include <gtest/gtest.h>

#include "graphwin/GraphExport.h"

namespace pictures {

inline const QString kKept = QStringLiteral(PLOTTO_SOURCE_DIR "/tests/pictures/");

inline bool keeping() { return qEnvironmentVariableIntValue("PLOTTO_KEEP_PICTURES") == 1; }

// The program's type (the forms', the launcher's, the pages') with the signs it writes, on white.
inline QImage typeSample()
{
    QImage image(520, 150, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setPen(Qt::black);
    const QString sample = QStringLiteral("Step 1 of 4: y' = 3*x^2 - 2, f(1.25) = -0.0469 (\u03b5, \u03b4) \u00e4\u00e9\u00df");
    QFont bold(QStringLiteral("Times New Roman"), 10);
    bold.setBold(true);
    const QFont fonts[] = {QFont(QStringLiteral("Times New Roman"), 10), QFont(QStringLiteral("Times New Roman"), 11),
                           bold, QApplication::font(), graphexport::pageFont(160)};
    int y = 20;
    for (const QFont& font : fonts) {
        p.setFont(font);
        p.drawText(4, y, sample);
        y += 26;
    }
    return image;
}

// Whether the pictures can be compared here, or why not.
inline QString whyNotComparable()
{
    if (keeping())
        return {};
    const QImage kept(kKept + QStringLiteral("type-sample.png"));
    if (kept.isNull())
        return QStringLiteral("no kept type sample: run once with PLOTTO_KEEP_PICTURES=1");
    if (kept.text(QStringLiteral("Qt")) != QLatin1String(qVersion()))
        return QStringLiteral("the pictures were kept with Qt %1, this is Qt %2")
            .arg(kept.text(QStringLiteral("Qt")), QLatin1String(qVersion()));
    if (kept.convertToFormat(QImage::Format_RGB32) != typeSample())
        return QStringLiteral("this machine's fonts draw the program's type differently from the machine the "
                              "pictures were kept on");
    return {};
}

using Stamps = std::vector<std::pair<QString, QString>>;

// Keeps a picture under its name, stamped with the version of Qt that drew it and `stamps`.
inline void keep(QImage image, const QString& name, const Stamps& stamps = {})
{
    image.setText(QStringLiteral("Qt"), QLatin1String(qVersion()));
    for (const auto& [key, value] : stamps)
        image.setText(key, value);
    ASSERT_TRUE(image.save(kKept + name + QStringLiteral(".png"))) << name.toStdString();
}

// Compares the picture with the kept one of that name (or keeps it). `stamps` name what else drew it
// (another program's version): a picture kept with other stamps is not compared.
inline void expectPicture(const QImage& taken, const QString& name, const Stamps& stamps = {})
{
    const QImage image = taken.convertToFormat(QImage::Format_RGB32);
    if (keeping())
        return keep(image, name, stamps);
    const QImage stamped(kKept + name + QStringLiteral(".png"));
    for (const auto& [key, value] : stamps)
        if (stamped.text(key) != value)
            GTEST_SKIP() << name.toStdString() << " was drawn by " << stamped.text(key).toStdString() << ", this is "
                         << value.toStdString();
    const QImage kept = stamped.convertToFormat(QImage::Format_RGB32);
    ASSERT_FALSE(kept.isNull()) << "no kept picture " << name.toStdString();
    ASSERT_EQ(kept.size(), image.size()) << name.toStdString();
    QImage marked = image;
    int differ = 0;
    QRect where;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != kept.pixel(x, y)) {
                ++differ;
                where |= QRect(x, y, 1, 1);
                marked.setPixel(x, y, qRgb(255, 0, 0));
            }
    if (differ == 0)
        return;
    QDir().mkpath(QStringLiteral("pictures-differ"));
    image.save(QStringLiteral("pictures-differ/") + name + QStringLiteral(".png"));
    marked.save(QStringLiteral("pictures-differ/") + name + QStringLiteral("-marked.png"));
    ADD_FAILURE() << name.toStdString() << ": " << differ << " pixels differ from the kept picture, within (" << where.x()
                  << ", " << where.y() << ") to (" << where.right() << ", " << where.bottom() << "); see "
                  << QDir::current().filePath(QStringLiteral("pictures-differ")).toStdString();
}

}  // namespace pictures
