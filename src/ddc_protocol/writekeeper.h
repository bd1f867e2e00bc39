#pragma once

#include <QObject>

/// Stores the counted writes while it lives: a minute after the first new one, and at its end. Nothing is done while
/// nothing is written. There is at most one.
class WriteKeeper : public QObject
{
    Q_OBJECT
public:
    explicit WriteKeeper(QObject *parent = nullptr);
    ~WriteKeeper() override;
};
