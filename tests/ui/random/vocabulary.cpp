// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/vocabulary.h"

#include <vector>

namespace boulix::testing_support::vocabulary {

namespace {

const std::vector<QString> &texts() {
    static const std::vector<QString> all = {
        "",      " ",     "\t",        "\t7",    "0",        "-0",       "1",        "2",
        "3",     "6",     "7",         "10",     "49",       "50",       "60",       "-1",
        "32766", "32767", "32768",     "-32768", "-32769",   "65535",    "65536",    "2147483647",
        "1e5",   "1e400", "-1e40",     "1,5",    "2.5",      "0.6",      "1 000",    "&H10",
        "abc",   "12abc", "é€œ",       "日本語", "\u202e21", "%1 %2 %n", "<b>x</b>", "a&b",
        "0x1F",  "+5",    "NaN",       "inf",    "--3",      "1-2",      "2/3",      "01/02/03",
        "\"",    "x;y",   "[section]", "a=b",    "👍",        "\u0301e",  "0000012",  " 12 ",
    };
    return all;
}

const std::vector<QKeyCombination> &keys() {
    static const std::vector<QKeyCombination> all = {
        Qt::Key_Tab,
        Qt::SHIFT | Qt::Key_Tab,
        Qt::Key_Up,
        Qt::Key_Down,
        Qt::Key_Left,
        Qt::Key_Right,
        Qt::Key_PageUp,
        Qt::Key_PageDown,
        Qt::Key_Home,
        Qt::Key_End,
        Qt::CTRL | Qt::Key_Home,
        Qt::SHIFT | Qt::Key_Down,
        Qt::SHIFT | Qt::Key_End,
        Qt::CTRL | Qt::Key_Down,
        Qt::Key_Return,
        Qt::Key_Enter,
        Qt::Key_Space,
        Qt::CTRL | Qt::Key_Space,
        Qt::Key_Escape,
        Qt::Key_Delete,
        Qt::Key_Backspace,
        Qt::Key_Insert,
        Qt::Key_F1,
        Qt::Key_F2,
        Qt::Key_F4,
        Qt::Key_F5,
        Qt::Key_F10,
        Qt::Key_Menu,
        Qt::Key_Plus,
        Qt::Key_Minus,
        Qt::CTRL | Qt::Key_A,
        Qt::CTRL | Qt::Key_C,
        Qt::CTRL | Qt::Key_V,
        Qt::CTRL | Qt::Key_X,
        Qt::CTRL | Qt::Key_Z,
        Qt::CTRL | Qt::Key_S,
        Qt::CTRL | Qt::Key_O,
        Qt::CTRL | Qt::Key_P,
        Qt::CTRL | Qt::Key_N,
        Qt::CTRL | Qt::Key_F,
        Qt::CTRL | Qt::Key_Tab,
        Qt::CTRL | Qt::Key_PageDown,
    };
    return all;
}

} // namespace

QString text(Dice &dice) {
    if (dice.onceIn(3))
        return QString::number(dice.between(-2, 60));
    if (dice.onceIn(25))
        return QString(dice.between(100, 5000),
                       dice.oneOf(std::vector<QChar>{u'9', u'w', u' ', u'é'}));
    return dice.oneOf(texts());
}

QKeyCombination key(Dice &dice) {
    if (dice.onceIn(4)) // a mnemonic
        return Qt::ALT | static_cast<Qt::Key>(Qt::Key_A + dice.below(26));
    return dice.oneOf(keys());
}

} // namespace boulix::testing_support::vocabulary
