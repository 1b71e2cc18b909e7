#include "contract/ContractTest.h"
#include "platform/Permissions.h"

namespace quorvel::contract {
namespace {

class PermissionsContract : public ContractTest {
protected:
    Permissions& permissions = port(&ContractPorts::permissions);
};

TEST_F(PermissionsContract, WhatNobodyDeniesIsGranted)
{
    EXPECT_TRUE(permissions.isGranted(Permission::accessibility));
    EXPECT_TRUE(permissions.isGranted(Permission::inputMonitoring));
}

TEST_F(PermissionsContract, ADeniedOneIsMissedAndTheOtherIsNot)
{
    if (!desktop->can(Capability::denyPermissions)) {
        GTEST_SKIP() << "This platform knows no such permission.";
    }
    desktop->deny(Permission::inputMonitoring);

    EXPECT_FALSE(permissions.isGranted(Permission::inputMonitoring));
    EXPECT_TRUE(permissions.isGranted(Permission::accessibility));
}

TEST_F(PermissionsContract, ToAskForOneIsNotToGetIt)
{
    if (!desktop->can(Capability::denyPermissions)) {
        GTEST_SKIP() << "This platform knows no such permission.";
    }
    desktop->deny(Permission::accessibility);

    permissions.request(Permission::accessibility);
    desktop->settle();

    EXPECT_FALSE(permissions.isGranted(Permission::accessibility));
}

TEST_F(PermissionsContract, SettingsAreOpenedWhereThereAreSome)
{
    for (const auto permission : {Permission::accessibility, Permission::inputMonitoring}) {
        EXPECT_EQ(permissions.openSettings(permission), permissions.hasSettings(permission));
    }
}

} // namespace
} // namespace quorvel::contract
