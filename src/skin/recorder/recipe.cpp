// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/recorder/recipe.h"

#include <QSet>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace orvalis::skin::recorder {

namespace {

[[noreturn]] void fail(int line, const QString& what) {
    throw RecorderError(u"pictures.list:%1: %2"_s.arg(line).arg(what));
}

// "tint light #1F5E6B=#FFFFFF #5E8C46=#DCEFD0"
void readTint(const QStringList& words, int line, RecipeBook& book) {
    if (words.size() < 3)
        fail(line, u"a tint needs a name and colours"_s);
    Tint tint;
    for (const QString& word : words.mid(2)) {
        const QStringList sides = word.split(u'=');
        if (sides.size() != 2)
            fail(line, u"not a pair of colours: "_s + word);
        tint.append({sides[0].toLatin1(), sides[1].toLatin1()});
    }
    if (book.tints.contains(words[1]))
        fail(line, u"tint given twice: "_s + words[1]);
    book.tints.insert(words[1], tint);
}

QSize readSize(const QString& word, int line) {
    const QStringList sides = word.split(u'x');
    const QSize size = sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
    if (size.isEmpty())
        fail(line, u"not a size: "_s + word);
    return size;
}

// "icon_new@light 4,4,24,24"; without a place the drawing fills the picture.
Layer readLayer(const QString& text, QSize size, int line) {
    const QStringList words = text.simplified().split(u' ');
    const QStringList drawing = words[0].split(u'@');
    Layer layer{drawing[0], drawing.value(1), QRectF(QPointF(), size)};
    if (drawing[0].isEmpty() || drawing.size() > 2 || words.size() > 2)
        fail(line, u"not a layer: "_s + text);
    if (words.size() == 2) {
        const QStringList sides = words[1].split(u',');
        if (sides.size() == 4)
            layer.place = QRectF(sides[0].toDouble(), sides[1].toDouble(), sides[2].toDouble(),
                                 sides[3].toDouble());
        if (sides.size() != 4 || layer.place.isEmpty())
            fail(line, u"not a place: "_s + words[1]);
    }
    return layer;
}

// "=plate": what the picture lies on. The base is drawn once for all that share it, and it has none
// itself, so that this is never more than one step.
QString readBase(const QString& name, const Recipe& recipe, const RecipeBook& book, int line) {
    for (const Recipe& other : book.recipes) {
        if (other.name != name)
            continue;
        if (other.size != recipe.size || !other.base.isEmpty() || !recipe.layers.isEmpty())
            fail(line, u"cannot lie on "_s + name);
        return name;
    }
    fail(line, u"no such picture above: "_s + name);
}

} // namespace

RecipeBook readRecipes(const QString& text) {
    RecipeBook book;
    QSet<QString> names;
    int number = 0;
    for (const QString& raw : text.split(u'\n')) {
        ++number;
        const QString line = raw.section(u"//"_s, 0, 0).simplified();
        if (line.isEmpty())
            continue;
        const QString head = line.section(u" : "_s, 0, 0);
        const QString tail = line.section(u" : "_s, 1);
        const QStringList words = head.split(u' ');
        if (words[0] == u"tint"_s) {
            readTint(words, number, book);
            continue;
        }
        if (words.size() != 2 || tail.isEmpty())
            fail(number, u"neither a tint nor a picture"_s);
        if (names.contains(words[0]))
            fail(number, u"picture given twice: "_s + words[0]);
        names.insert(words[0]);
        Recipe recipe{words[0], readSize(words[1], number), {}, {}};
        for (const QString& layer : tail.split(u'+')) {
            if (layer.trimmed().startsWith(u'=')) {
                recipe.base = readBase(layer.simplified().mid(1), recipe, book, number);
                continue;
            }
            recipe.layers.append(readLayer(layer, recipe.size, number));
            const QString tint = recipe.layers.constLast().tint;
            if (!tint.isEmpty() && !book.tints.contains(tint))
                fail(number, u"no such tint: "_s + tint);
        }
        book.recipes.append(recipe);
    }
    return book;
}

} // namespace orvalis::skin::recorder
