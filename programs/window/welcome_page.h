#pragma once

#include <QWidget>

namespace window {

class Actions;

/// What a window shows as long as no label is open: how to open one.
class WelcomePage final : public QWidget
{
    Q_OBJECT

public:
    explicit WelcomePage(const Actions& actions, QWidget* parent = nullptr);
};

} // namespace window
