// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// The cipher over the longest text that it takes, each way and by each method, with its progress
// bar on the screen.
#include "controls/progress_bar.h"
#include "password/text_cipher.h"
#include "runtime/ansi_page.h"
#include "timing.h"

#include <QApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

class OnBar final : public CipherProgress {
public:
    explicit OnBar(ProgressBar& bar)
        : m_bar(bar) {}
    void show() override { m_bar.setVisible(true); }
    void hide() override { m_bar.setVisible(false); }
    void setValue(float percent) override { m_bar.SetValue(percent); }

private:
    ProgressBar& m_bar;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    constexpr int Longest = 32766;
    QWidget window;
    window.resize(700, 450);
    ProgressBar bar(u"PB1"_s, &window);
    window.show();
    OnBar progress(bar);
    QString text;
    for (int i = 0; i < Longest; ++i)
        text += QChar(u' ' + i % 90);
    const CipherGround ground{.page = AnsiPage::ofUser()};
    for (const int method : {1, 2}) {
        for (const bool encrypt : {true, false}) {
            QString source = text;
            if (!encrypt)
                source = EncryptString(text.left(Longest / 2), u"secret"_s, true, method, ground,
                                       progress);
            report(u"%1 of 32766 characters, method %2"_s.arg(
                       encrypt ? u"scramble"_s : u"bring back"_s, QString::number(method)),
                   bestOf(20,
                          [&] {
                              EncryptString(source, u"secret"_s, encrypt, method, ground, progress);
                          }),
                   u"5 ms"_s);
        }
    }
    return 0;
}
