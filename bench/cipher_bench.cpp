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

#include <algorithm>
#include <cstdio>

using namespace orvalis;
using bench::medianMilliseconds;
using namespace Qt::StringLiterals;

namespace {

constexpr int Longest = 32766;
constexpr int Rounds = 21;

/// Shows the progress as the panel does.
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(700, 450);
    ProgressBar bar(u"PB1"_s, &window);
    window.show();
    OnBar progress(bar);
    QString text;
    for (int i = 0; i < Longest; ++i)
        text += QChar(u' ' + i % 90);
    double slowest = 0;
    const CipherGround ground{.page = AnsiPage::ofUser()};
    for (const int method : {1, 2}) {
        for (const bool encrypt : {true, false}) {
            QString source = text;
            if (!encrypt)
                source = EncryptString(text.left(Longest / 2), u"secret"_s, true, method, ground,
                                       progress);
            const double time = medianMilliseconds(Rounds, [&] {
                EncryptString(source, u"secret"_s, encrypt, method, ground, progress);
            });
            std::printf("%s, method %d: %.2f ms (aim: below 5)\n",
                        encrypt ? "scramble 32,766 characters" : "bring back 32,766 characters",
                        method, time);
            slowest = std::max(slowest, time);
        }
    }
    return slowest < 5 ? 0 : 1;
}
