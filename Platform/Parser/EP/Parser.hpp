#pragma once

/// Everything that the parser layer offers.

#include "EP/FractionalInch.hpp"
#include "EP/LocaleSettings.hpp"
#include "EP/LocalizedNumberString.hpp"
#include "EP/NormalizedParsingLocaleSettings.hpp"
#include "EP/ReferenceString.hpp"
#include "EP/SyntaxErrorException.hpp"
#include "EP/SyntaxTree.hpp"
#include "EP/SyntaxTreeBuilder.hpp"
#include "EP/SyntaxTreeNode.hpp"
#include "EP/TextConstants.hpp"
#include "EP/Token.hpp"
#include "EP/Tokenizer.hpp"
