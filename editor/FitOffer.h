// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolButton>
#include <functional>

namespace deckforge {

/// A button in the status bar that offers to fit a picture which is much larger than its frame. Hidden until
/// there is an offer.
class FitOffer final : public QToolButton {
public:
    explicit FitOffer(QWidget* parent) : QToolButton(parent)
    {
        setObjectName(QStringLiteral("cmdFitOffer"));
        setText(QStringLiteral("Much larger than its frame. Fit…"));
        setToolTip(QStringLiteral("Fit picture to its frame"));
        setAutoRaise(true);
        setFocusPolicy(Qt::StrongFocus);
        hide();
        connect(this, &QToolButton::clicked, this, [this] {
            hide();
            if (m_fit)
                m_fit();
        });
    }

    void Offer(std::function<void()> fit)
    {
        m_fit = std::move(fit);
        show();
    }

private:
    std::function<void()> m_fit;
};

} // namespace deckforge
