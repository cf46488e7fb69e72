#pragma once

#include <QWidget>

namespace window {

class Actions;

/// Shown while no label is open: explains how to open one.
class WelcomePage final : public QWidget
{
    Q_OBJECT

public:
    explicit WelcomePage(const Actions& actions, QWidget* parent = nullptr);
};

} // namespace window
