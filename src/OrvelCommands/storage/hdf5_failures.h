/// \file
/// Every failure of the HDF5 storage. Other programs match these texts and codes, so they stay as they are, slips of
/// the pen and codes that serve several sites included.
#pragma once

#include "OrvelCommands/foundation/throw_failure.h"

namespace orvel::detail::hdf5_failures
{

constexpr const char* kValueAbsent = "Failed to retrieve value from the optimization database.";

// Reads report it too: the texts of a key's opening are shared by the two directions.
constexpr const char* kValueNotReached =
  "Failed to add value in the optimization database.\nDatabase reported the following error:\n %s ";

constexpr const char* kCommandCode = "185548010612";
constexpr const char* kLookupCode = "185548060612";

constexpr FailureText kOpenFile{
  "Failed to create the HDF5 optimization database.\n  HDF5 reported the following error:\n  %s"};
constexpr FailureText kMakeParfile{
  "Failed to create parfile storage in the optimization database.\nDatabase reported the following error:\n %s ",
  "192431310512"};
constexpr FailureText kOpenParfile{
  "Failed to retrieve the parfile from the optimization database.\nDatabase reported the following error:\n %s ",
  "192435310512"};

constexpr FailureText kAddCommandKind{
  "Failed to retrieve command group from the optimization database.\nDatabase reported the following error:\n %s ",
  "185546010612"};
constexpr FailureText kAddCommandTaken{"The ID_NAME %s is already used. Please check your parameterfile"};
constexpr FailureText kAddCommandId{
  "Failed to create command in the optimization database.\nDatabase reported the following error:\n %s ", kCommandCode};

constexpr FailureText kCommandSize{"Failed to retrieve command size info from the optimization database.\n"
                                   "Database reported the following error:\n %s ",
                                   kCommandCode};
constexpr FailureText kNumElements{
  "Failed to value size info from the optimization database.\nDatabase reported the following error:\n %s ",
  kLookupCode};
constexpr FailureText kHasElement{
  "Failed to retrieve value size info from the optimization database.\nDatabase reported the following error:\n %s ",
  kLookupCode};
constexpr FailureText kCommandName{"Failed to retrieve command name info from the optimization database.\n"
                                   "Database reported the following error:\n %s ",
                                   kLookupCode};
constexpr FailureText kDeleteValues{
  "Failed to retrieve command info from the optimization database.\nDatabase reported the following error:\n %s ",
  "202404140612"};

constexpr FailureText kReferenceTarget{
  "A command of type %s with the ID_NAME %s referenced in the parameterfile is not found\n"
  "  The command is reference from the %s command with ID_NAME %s"};
constexpr FailureText kReference{
  // reading one reports it too
  "Failed to write reference in the optimization database.\nDatabase reported the following error:\n %s ",
  "172740050612"};

constexpr FailureText kWriteElement{
  "Failed to write value in the optimization database.\nDatabase reported the following error:\n %s ", "172740040612"};
constexpr FailureText kReadElement{
  "Failed to read value from the optimization database.\nDatabase reported the following error:\n %s ", "134746060612"};

constexpr FailureText kGetAbsent{kValueAbsent, "160045060612"};
constexpr FailureText kSetAbsent{kValueAbsent, "160046060612"};
constexpr FailureText kGetNotReached{kValueNotReached, "172756040612"};
constexpr FailureText kSetNotReached{kValueNotReached, "172757040612"};
constexpr FailureText kAddNotReached{kValueNotReached, "172758040612"};

// Details of our own, in the place of HDF5's.
constexpr const char* kWrongRank = "the dataset of a key is not of rank 1";
constexpr const char* kWrongVtmType = "the VtmType does not fit the type of the value";
constexpr const char* kUnnamedTarget = "the target of the reference has no name";
constexpr const char* kNoGroup = "the reference leads to no group";
constexpr const char* kNoWalk = "the names of a group cannot be walked";

}  // namespace orvel::detail::hdf5_failures
